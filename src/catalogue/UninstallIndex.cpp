#include "catalogue/UninstallIndex.h"

#include "support/Logger.h"
#include "support/RegistryKey.h"
#include "support/Trace.h"
#include "trace/UninstallCommand.h"

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

} // namespace

UninstallIndex::UninstallIndex()
    : Index(Trace::IndexName::uninstall) {}

QString UninstallIndex::rootKeyPath() {
    return QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall");
}

std::vector<UninstallEntry> UninstallIndex::findByName(const QString& displayName, int matchMode) {
    return built(m_names).find(displayName, matchMode);
}

std::vector<UninstallEntry> UninstallIndex::findByKeyPath(const QString& keyPath) {
    return built(m_keyPaths).find(keyPath);
}

void UninstallIndex::build(std::list<UninstallEntry>& entries) {
    Logger logger = Logger::create("Quorvan.Finders.Uninstall");
    for (const quint32 view : views) {
        for (const quint32 hive : hives) {
            read(hive, view, entries, logger);
        }
    }
}

void UninstallIndex::read(quint32 hive, quint32 view, std::list<UninstallEntry>& entries, Logger& logger) {
    QStringList names;
    if (!RegistryKey::open(rootKeyPath(), hive, view).subKeyNames(names)) {
        return;
    }
    logger.logAlways("=== View: %d, Scope: %d ===", static_cast<int>(view), static_cast<int>(hive));
    m_names.reserve(static_cast<std::size_t>(names.size()));
    m_keyPaths.reserve(static_cast<std::size_t>(names.size()));
    takeEach(std::move(names), [&](const QString& name) {
        const UninstallEntry entry = readEntry(rootKeyPath() + QLatin1Char('\\') + name, hive, view);
        if (!entry.displayName.isEmpty() && tellsAPlace(entry)) {
            logger.logAlways("%ls, %ls, %ls", qUtf16Printable(entry.displayName),
                             qUtf16Printable(entry.installLocation), qUtf16Printable(entry.uninstallString));
            add(entries, entry, entry.displayName, entry.installLocation, m_names.row(entry.displayName, entry),
                m_keyPaths.row(entry.keyPath, entry));
        }
    });
}
