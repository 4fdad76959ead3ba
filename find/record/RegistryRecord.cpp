#include "find/record/RegistryRecord.h"

#include "find/record/UsedParts.h"

namespace Find {

namespace {

bool is32Bit(const Trace::KeyPlace& place) {
    return place.view == 32;
}

Recordings::RegistryNode& makeKey(const Trace::KeyPlace& place, const QString& below, Recordings::Registry& registry) {
    QStringList path = place.key.split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    if (!below.isEmpty()) {
        path.append(below);
    }
    const auto view = is32Bit(place) ? Recordings::RegistryView::Bits32 : Recordings::RegistryView::Bits64;
    return registry.make(Recordings::rootNamed(place.root), path, view);
}

void addValue(const Trace::Value& event, Recordings::Registry& registry) {
    Recordings::RegistryNode& key = makeKey(event.place, {}, registry);
    // Where both views share a key, as HKEY_CLASSES_ROOT does, finders ask the 32-bit one first.
    if (is32Bit(event.place) || !key.value(event.name)) {
        key.apply(usedValue({event.name, false, event.type, event.data}));
    }
}

} // namespace

void addToRegistry(const TraceEvent& event, Recordings::Registry& registry) {
    if (const auto* const subKeys = std::get_if<Trace::SubKeys>(&event)) {
        makeKey(subKeys->place, {}, registry);
        for (const QString& name : subKeys->names) {
            makeKey(subKeys->place, name, registry);
        }
    } else if (const auto* const key = std::get_if<Trace::Key>(&event)) {
        if (key->error == 0) {
            makeKey(key->place, {}, registry);
        }
    } else if (const auto* const value = std::get_if<Trace::Value>(&event)) {
        if (value->error == 0) {
            addValue(*value, registry);
        }
    }
}

} // namespace Find
