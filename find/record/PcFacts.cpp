#include "find/record/PcFacts.h"

#include "find/record/InstalledPackages.h"
#include "recordings/ShellFolderNames.h"
#include "recordings/WindowsNames.h"

#include <algorithm>
#include <iterator>

namespace Host {

namespace {

void addShellFolder(const TraceEvent& event, Recordings::Pc& pc) {
    const auto csidl = static_cast<int>(event.number("csidl"));
    const bool isKnown = std::any_of(std::begin(Recordings::shellFolders), std::end(Recordings::shellFolders),
                                     [csidl](const auto& known) { return known.csidl == csidl; });
    if (isKnown && !event.text("path").isEmpty()) {
        pc.shellFolders.insert(csidl, event.text("path"));
    }
}

/// The catalogue may write a key in other letter case than the settings do.
void addUserLocation(const TraceEvent& event, Recordings::Pc& pc) {
    const QString key = event.text("key");
    const auto& locations = pc.userLocations;
    const bool isKnown = std::any_of(locations.keyBegin(), locations.keyEnd(), [&](const QString& known) {
        return Recordings::foldName(known) == Recordings::foldName(key);
    });
    if (!isKnown) {
        pc.userLocations.insert(key, event.text("path"));
    }
}

void addPackage(const TraceEvent& event, Recordings::Pc& pc) {
    if (!event.flag("supported")) {
        return;
    }
    if (!pc.packages) {
        pc.packages.emplace();
    }
    const QString family = event.text("family");
    const bool isKnown =
        std::any_of(pc.packages->begin(), pc.packages->end(), [&](const Recordings::AppPackage& known) {
            return known.family.compare(family, Qt::CaseInsensitive) == 0;
        });
    if (!event.text("fullName").isEmpty() && !isKnown) {
        pc.packages->push_back({family, event.text("fullName"), event.texts("applicationIds")});
        // Where a recording of the recording looks for it.
        const QStringList key = (packagesKey() + QLatin1Char('\\') + event.text("fullName")).split(QLatin1Char('\\'));
        pc.registry.make(Recordings::RegKey::Root::CurrentUser, key, Recordings::RegistryView::Bits64);
    }
}

} // namespace

void addFact(const TraceEvent& event, Recordings::Pc& pc) {
    if (event.is("shellFolder")) {
        addShellFolder(event, pc);
    } else if (event.is("volume") && !event.text("name").isEmpty()) {
        pc.volumes.insert(event.text("drive").at(0).toUpper(), event.text("name"));
    } else if (event.is("environment") && event.has("value")) {
        pc.environment.insert(event.text("name"), event.text("value"));
    } else if (event.is("userLocation") && !event.text("path").isEmpty()) {
        addUserLocation(event, pc);
    } else if (event.is("package")) {
        addPackage(event, pc);
    }
}

} // namespace Host
