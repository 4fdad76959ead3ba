#include "find/record/RegistryRecord.h"

#include "recordings/RegistryView.h"
#include "recordings/WindowsNames.h"

namespace Host {

namespace {

constexpr QLatin1Char backslash('\\');

QStringList storedPath(const QString& root, const QStringList& path, Windows::RegistryView view) {
    if (root == QLatin1String("HKEY_LOCAL_MACHINE")) {
        return Windows::storedMachinePath(path, view);
    }
    if (root == QLatin1String("HKEY_CURRENT_USER")) {
        return Windows::storedUserPath(path, view);
    }
    return root == QLatin1String("HKEY_CLASSES_ROOT") ? Windows::storedClassesPath(path, view) : path;
}

bool is32Bit(const Trace::KeyPlace& place) {
    return place.view == 32;
}

} // namespace

void RegistryRecord::add(const TraceEvent& event) {
    if (const auto* const subKeys = std::get_if<Trace::SubKeys>(&event)) {
        makeKey(subKeys->place);
        for (const QString& name : subKeys->names) {
            makeKey(subKeys->place, name);
        }
    } else if (const auto* const key = std::get_if<Trace::Key>(&event)) {
        if (key->error == 0) {
            makeKey(key->place);
        }
    } else if (const auto* const value = std::get_if<Trace::Value>(&event)) {
        if (value->error == 0) {
            addValue(*value);
        }
    }
}

void RegistryRecord::addValue(const Trace::Value& event) {
    RecordedKey& key = makeKey(event.place);
    RecordedValue value = {event.name, event.type, event.data};
    // Where both views share a key, as HKEY_CLASSES_ROOT does, finders ask the 32-bit one first.
    if (is32Bit(event.place)) {
        key.values[Windows::foldName(event.name)] = std::move(value);
    } else {
        key.values.try_emplace(Windows::foldName(event.name), std::move(value));
    }
}

int RegistryRecord::valueCount() const {
    int count = 0;
    for (const auto& [path, key] : m_keys) {
        count += static_cast<int>(key.values.size());
    }
    return count;
}

RecordedKey& RegistryRecord::makeKey(const Trace::KeyPlace& place, const QString& below) {
    QStringList path = place.key.split(backslash, Qt::SkipEmptyParts);
    if (!below.isEmpty()) {
        path.append(below);
    }
    const auto view = is32Bit(place) ? Windows::RegistryView::Bits32 : Windows::RegistryView::Bits64;
    path = storedPath(place.root, path, view);
    RecordedKey& key = m_keys[Windows::foldName((QStringList{place.root} + path).join(backslash))];
    if (key.root.isEmpty()) {
        key.root = place.root;
        key.path = path;
    }
    return key;
}

} // namespace Host
