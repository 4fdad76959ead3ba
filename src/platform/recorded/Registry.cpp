#include "platform/Registry.h"

#include "platform/recorded/Observer.h"
#include "platform/recorded/RecordedPc.h"
#include "recordings/AnsiText.h"
#include "recordings/Utf16Text.h"

#include <cstring>
#include <mutex>

namespace Platform {

namespace {

constexpr ErrorCode errorBadPathName = 161;

constexpr quint32 regExpandSz = 2;
constexpr quint32 regMultiSz = 7;

struct OpenKey {
    std::shared_ptr<const Recorded::RecordedPc> pc; // owns what the layers point to
    Recordings::Registry::Layers layers;
    std::once_flag listed;
    std::vector<QString> subKeys;
};

OpenKey& opened(const KeyHandle& key) {
    return *static_cast<OpenKey*>(key.get());
}

// Windows reads a name up to its first null.
QString terminated(const QString& text) {
    return text.left(text.indexOf(QChar(u'\0')));
}

bool isText(quint32 type) {
    return type == regSz || type == regExpandSz || type == regMultiSz;
}

const char* rootName(RootKey root) {
    switch (root) {
    case RootKey::LocalMachine:
        return "HKLM";
    case RootKey::CurrentUser:
        return "HKCU";
    case RootKey::ClassesRoot:
        return "HKCR";
    case RootKey::Users:
        break;
    }
    return "HKU";
}

Recordings::RegKey::Root rootOf(RootKey root) {
    using Root = Recordings::RegKey::Root;
    switch (root) {
    case RootKey::LocalMachine:
        return Root::LocalMachine;
    case RootKey::ClassesRoot:
        return Root::ClassesRoot;
    case RootKey::Users:
        return Root::Users;
    case RootKey::CurrentUser:
        break;
    }
    return Root::CurrentUser;
}

void observeKey(RootKey root, const QString& subKey, Recordings::RegistryView view) {
    if (!Recorded::isObserved()) {
        return;
    }
    const QString bits = view == Recordings::RegistryView::Bits32 ? QStringLiteral("32") : QString();
    Recorded::observe(QLatin1String("key ") + QLatin1String(rootName(root)) + bits + QLatin1Char('\\') + subKey);
}

ErrorCode store(const QByteArray& bytes, void* data, quint32& size) {
    const auto needed = static_cast<quint32>(bytes.size());
    const bool fits = needed <= size;
    size = needed;
    if (!data) {
        return errorSuccess;
    }
    if (!fits) {
        return errorMoreData;
    }
    if (needed > 0) {
        std::memcpy(data, bytes.constData(), needed);
    }
    return errorSuccess;
}

// Windows ends text that is stored without an end, when the buffer has room for it.
void endText(const QByteArray& bytes, int unit, void* data, quint32 capacity) {
    const int size = bytes.size();
    if (!data || size < unit || static_cast<quint32>(size + unit) > capacity) {
        return;
    }
    if (bytes.right(unit).count('\0') != unit) {
        std::memset(static_cast<char*>(data) + size, 0, static_cast<size_t>(unit));
    }
}

QByteArray ansiText(const QByteArray& data, int codePage) {
    return Recordings::toAnsi(Recordings::fromUtf16(data), codePage);
}

const Recordings::RegistryNode::Value* find(const KeyHandle& key, const QString& name) {
    if (Recorded::isObserved()) {
        Recorded::observe(QLatin1String("value ") + name);
    }
    return Recordings::Registry::value(opened(key).layers, name);
}

} // namespace

void KeyCloser::operator()(void* key) const noexcept {
    delete static_cast<OpenKey*>(key);
}

ErrorCode openKey(RootKey root, const QString& subKey, quint32 access, KeyHandle& key) {
    key.reset();
    const QString path = terminated(subKey);
    const auto view = (access & keyWow64_32Key) ? Recordings::RegistryView::Bits32 : Recordings::RegistryView::Bits64;
    observeKey(root, path, view);
    // Windows takes a backslash before the names in the one root that its kernel doesn't know.
    if (path.startsWith(QLatin1Char('\\')) && root != RootKey::ClassesRoot) {
        return errorBadPathName;
    }
    auto result = std::make_unique<OpenKey>();
    result->pc = Recorded::currentPc();
    const QStringList names = path.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    result->layers = result->pc->registry().open(rootOf(root), names, view);
    if (result->layers.empty() && !names.isEmpty()) {
        return errorFileNotFound;
    }
    key.reset(result.release());
    return errorSuccess;
}

ErrorCode openKeyNarrow(RootKey root, const char* subKey, quint32 access, KeyHandle& key) {
    return openKey(root, QString::fromLatin1(subKey), access, key);
}

ErrorCode queryValue(const KeyHandle& key, const QString& valueName, quint32& type, void* data, quint32& size) {
    if (!key) {
        return errorInvalidHandle;
    }
    const Recordings::RegistryNode::Value* const value = find(key, terminated(valueName));
    if (!value) {
        return errorFileNotFound;
    }
    type = value->type;
    const quint32 capacity = size;
    const ErrorCode result = store(value->data, data, size);
    if (result == errorSuccess && isText(type)) {
        endText(value->data, sizeof(char16_t), data, capacity);
    }
    return result;
}

ErrorCode queryValueNarrow(const KeyHandle& key, const char* valueName, quint32& type, void* data, quint32& size) {
    if (!key) {
        return errorInvalidHandle;
    }
    const Recordings::RegistryNode::Value* const value = find(key, QString::fromLatin1(valueName));
    if (!value) {
        return errorFileNotFound;
    }
    type = value->type;
    const quint32 capacity = size;
    const QByteArray bytes = isText(type) ? ansiText(value->data, opened(key).pc->description().codePage) : value->data;
    const ErrorCode result = store(bytes, data, size);
    if (result == errorSuccess && isText(type)) {
        endText(bytes, sizeof(char), data, capacity);
    }
    return result;
}

ErrorCode enumKey(const KeyHandle& key, quint32 index, char16_t* name, quint32& length) {
    if (!key) {
        return errorInvalidHandle;
    }
    OpenKey& open = opened(key);
    std::call_once(open.listed, [&open] { open.subKeys = Recordings::Registry::subKeys(open.layers); });
    if (index >= open.subKeys.size()) {
        return errorNoMoreItems;
    }
    const QString& subKey = open.subKeys[index];
    const auto size = static_cast<quint32>(subKey.size());
    if (size >= length) {
        return errorMoreData;
    }
    std::memcpy(name, subKey.utf16(), (size + 1) * sizeof(char16_t));
    length = size;
    return errorSuccess;
}

} // namespace Platform
