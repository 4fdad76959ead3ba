#include "find/record/PcFacts.h"

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

} // namespace Find
