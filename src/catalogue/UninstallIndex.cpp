#include "catalogue/UninstallIndex.h"

#include "support/Logger.h"
#include "support/RegistryKey.h"
#include "support/Trace.h"
#include "support/UninstallCommand.h"

namespace {

constexpr quint32 views[] = {View::view32, View::view64};
constexpr quint32 hives[] = {Hive::localMachine, Hive::currentUser};

/// Shorter texts tell no place.
constexpr int shortestPlace = 2;

bool tellsAPlace(const UninstallEntry& entry) {
    return entry.installLocation.size() >= shortestPlace || entry.uninstallString.size() >= shortestPlace;
}

UninstallEntry readEntry(const QString& keyPath, quint32 hive, quint32 view) {
    RegistryKey key = RegistryKey::open(keyPath, hive, view);
    return {keyPath, key.text(QStringLiteral("DisplayName")), key.text(QStringLiteral("InstallLocation")),
            key.text(UninstallCommand::valueName)};
}

void readEntries(quint32 hive, quint32 view, std::list<UninstallEntry>& entries, Logger& logger) {
    const QString root = UninstallIndex::rootKeyPath();
    QStringList names;
    if (!RegistryKey::open(root, hive, view).subKeyNames(names)) {
        return;
    }
    logger.logAlways("=== View: %d, Scope: %d ===", static_cast<int>(view), static_cast<int>(hive));
    for (const QString& name : qAsConst(names)) {
        UninstallEntry entry = readEntry(root + QLatin1Char('\\') + name, hive, view);
        if (!entry.displayName.isEmpty() && tellsAPlace(entry)) {
            logger.logAlways("%ls, %ls, %ls", qUtf16Printable(entry.displayName),
                             qUtf16Printable(entry.installLocation), qUtf16Printable(entry.uninstallString));
            entries.push_back(std::move(entry));
        }
    }
}

} // namespace

QString UninstallIndex::rootKeyPath() {
    return QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
}

const std::list<UninstallEntry>& UninstallIndex::entries() {
    return catalogue().entries;
}

std::vector<const UninstallEntry*> UninstallIndex::findByName(const QString& displayName, int matchMode) {
    return catalogue().names.find(displayName, matchMode);
}

std::vector<const UninstallEntry*> UninstallIndex::findByKeyPath(const QString& keyPath) {
    return catalogue().keyPaths.find(keyPath);
}

const UninstallIndex::Catalogue& UninstallIndex::catalogue() {
    return m_catalogue.entries(build);
}

void UninstallIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("Uninstall");
    Logger logger = Logger::create("Quorvan.Finders.Uninstall");
    for (const quint32 view : views) {
        for (const quint32 hive : hives) {
            readEntries(hive, view, catalogue.entries, logger);
        }
    }
    for (const UninstallEntry& entry : catalogue.entries) {
        catalogue.names.add(entry.displayName, entry);
        catalogue.keyPaths.add(entry.keyPath, entry);
        Trace::entry(entry.displayName, entry.installLocation);
    }
    section.setEntries(catalogue.entries.size());
}
