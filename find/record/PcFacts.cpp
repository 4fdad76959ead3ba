#include "find/record/PcFacts.h"

#include "find/record/UsedParts.h"
#include "recordings/ShellFolderNames.h"
#include "recordings/WindowsNames.h"

#include <algorithm>
#include <iterator>

namespace Find {

namespace {

void addShellFolder(const Trace::ShellFolder& event, Recordings::Pc& pc) {
    const bool isKnown = std::any_of(std::begin(Recordings::shellFolders), std::end(Recordings::shellFolders),
                                     [&event](const auto& known) { return known.csidl == event.csidl; });
    if (isKnown && !event.path.isEmpty()) {
        pc.shellFolders.insert(event.csidl, event.path);
    }
}

/// The catalogue may write a key in other letter case than the settings do.
void addUserLocation(const Trace::UserLocation& event, Recordings::Pc& pc) {
    const auto& locations = pc.userLocations;
    const bool isKnown = std::any_of(locations.keyBegin(), locations.keyEnd(), [&event](const QString& known) {
        return Recordings::foldName(known) == Recordings::foldName(event.key);
    });
    if (!event.path.isEmpty() && !isKnown) {
        pc.userLocations.insert(event.key, event.path);
    }
}

void addPackage(const Trace::Package& event, Recordings::Pc& pc) {
    if (!event.supported) {
        return;
    }
    if (!pc.packages) {
        pc.packages.emplace();
    }
    const bool isKnown =
        std::any_of(pc.packages->begin(), pc.packages->end(), [&event](const Recordings::AppPackage& known) {
            return known.family.compare(event.family, Qt::CaseInsensitive) == 0;
        });
    if (!event.fullName.isEmpty() && !isKnown) {
        pc.packages->push_back({event.family, event.fullName, event.applicationIds});
        // Where a recording of the recording looks for it.
        const QStringList key =
            (Recordings::packagesKey() + QLatin1Char('\\') + event.fullName).split(QLatin1Char('\\'));
        pc.registry.make(Recordings::RegKey::Root::CurrentUser, key, Recordings::RegistryView::Bits64);
    }
}

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

void addFact(const TraceEvent& event, Recordings::Pc& pc) {
    if (const auto* const folder = std::get_if<Trace::ShellFolder>(&event)) {
        addShellFolder(*folder, pc);
    } else if (const auto* const volume = std::get_if<Trace::Volume>(&event)) {
        if (!volume->name.isEmpty() && !volume->drive.isEmpty()) {
            pc.volumes.insert(volume->drive.at(0).toUpper(), volume->name);
        }
    } else if (const auto* const variable = std::get_if<Trace::Environment>(&event)) {
        if (variable->value) {
            pc.environment.insert(variable->name, *variable->value);
        }
    } else if (const auto* const location = std::get_if<Trace::UserLocation>(&event)) {
        addUserLocation(*location, pc);
    } else if (const auto* const package = std::get_if<Trace::Package>(&event)) {
        addPackage(*package, pc);
    }
}

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
