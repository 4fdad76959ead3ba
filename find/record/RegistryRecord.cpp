#include "find/record/RegistryRecord.h"

#include "recordings/RegistryView.h"
#include "recordings/WindowsNames.h"

namespace Host {

namespace {

constexpr QLatin1Char backslash('\\');

QStringList storedPath(const QString& root, const QStringList& path, Recordings::RegistryView view) {
    if (root == QLatin1String("HKEY_LOCAL_MACHINE")) {
        return Recordings::storedMachinePath(path, view);
    }
    if (root == QLatin1String("HKEY_CURRENT_USER")) {
        return Recordings::storedUserPath(path, view);
    }
    return root == QLatin1String("HKEY_CLASSES_ROOT") ? Recordings::storedClassesPath(path, view) : path;
}

bool is32Bit(const TraceEvent& event) {
    return event.number("view") == 32;
}

} // namespace

void RegistryRecord::add(const TraceEvent& event) {
    if (event.is("subkeys")) {
        makeKey(event);
        const QStringList names = event.texts("names");
        for (const QString& name : names) {
            makeKey(event, name);
        }
        return;
    }
    if ((!event.is("key") && !event.is("value")) || event.number("error") != 0) {
        return;
    }
    RecordedKey& key = makeKey(event);
    if (!event.is("value")) {
        return;
    }
    const QString name = event.text("name");
    RecordedValue value = {name, static_cast<quint32>(event.number("type")),
                           QByteArray::fromHex(event.text("data").toLatin1())};
    // Where both views share a key, as HKEY_CLASSES_ROOT does, finders ask the 32-bit one first.
    if (is32Bit(event)) {
        key.values[Recordings::foldName(name)] = std::move(value);
    } else {
        key.values.try_emplace(Recordings::foldName(name), std::move(value));
    }
}

int RegistryRecord::valueCount() const {
    int count = 0;
    for (const auto& [path, key] : m_keys) {
        count += static_cast<int>(key.values.size());
    }
    return count;
}

RecordedKey& RegistryRecord::makeKey(const TraceEvent& event, const QString& below) {
    const QString root = event.text("root");
    QStringList path = event.text("key").split(backslash, Qt::SkipEmptyParts);
    if (!below.isEmpty()) {
        path.append(below);
    }
    const auto view = is32Bit(event) ? Recordings::RegistryView::Bits32 : Recordings::RegistryView::Bits64;
    path = storedPath(root, path, view);
    RecordedKey& key = m_keys[Recordings::foldName((QStringList{root} + path).join(backslash))];
    if (key.root.isEmpty()) {
        key.root = root;
        key.path = path;
    }
    return key;
}

} // namespace Host
