#include "find/record/RegistryRecord.h"

#include "find/record/UsedParts.h"

namespace Host {

namespace {

bool is32Bit(const TraceEvent& event) {
    return event.number("view") == 32;
}

Recordings::RegistryNode& makeKey(const TraceEvent& event, const QString& below, Recordings::Registry& registry) {
    QStringList path = event.text("key").split(QLatin1Char('\\'), Qt::SkipEmptyParts);
    if (!below.isEmpty()) {
        path.append(below);
    }
    const auto view = is32Bit(event) ? Recordings::RegistryView::Bits32 : Recordings::RegistryView::Bits64;
    return registry.make(Recordings::rootNamed(event.text("root")), path, view);
}

} // namespace

void addToRegistry(const TraceEvent& event, Recordings::Registry& registry) {
    if (event.is("subkeys")) {
        makeKey(event, {}, registry);
        const QStringList names = event.texts("names");
        for (const QString& name : names) {
            makeKey(event, name, registry);
        }
        return;
    }
    if ((!event.is("key") && !event.is("value")) || event.number("error") != 0) {
        return;
    }
    Recordings::RegistryNode& key = makeKey(event, {}, registry);
    // Where both views share a key, as HKEY_CLASSES_ROOT does, finders ask the 32-bit one first.
    if (event.is("value") && (is32Bit(event) || !key.value(event.text("name")))) {
        key.apply(usedValue({event.text("name"), false, static_cast<quint32>(event.number("type")),
                             QByteArray::fromHex(event.text("data").toLatin1())},
                            [](const QString& text) { return text; }));
    }
}

} // namespace Host
