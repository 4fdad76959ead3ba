#include "catalogue/GamesExplorerIndex.h"

#include "support/Logger.h"
#include "support/RegistryKey.h"
#include "support/Trace.h"

namespace {

constexpr quint32 views[] = {View::view32, View::view64};

QString rootKeyPath() {
    return QStringLiteral("SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games");
}

QString valueOf(RegistryKey& key, const QString& name) {
    QString value;
    key.readString(name, value);
    return value;
}

/// A key that can't be opened gives an entry without values.
GamesExplorerEntry readEntry(const QString& name, quint32 view) {
    RegistryKey key = RegistryKey::open(rootKeyPath() + QLatin1Char('\\') + name, Hive::localMachine, view);
    return {name, valueOf(key, QStringLiteral("Title")), valueOf(key, QStringLiteral("AppExePath")),
            valueOf(key, QStringLiteral("ConfigApplicationPath"))};
}

void readEntries(quint32 view, std::list<GamesExplorerEntry>& entries, Logger& logger) {
    QStringList names;
    RegistryKey::open(rootKeyPath(), Hive::localMachine, view).subKeyNames(names);
    for (const QString& name : qAsConst(names)) {
        entries.push_back(readEntry(name, view));
        const GamesExplorerEntry& entry = entries.back();
        logger.logAlways("Title: %ls, %ls", qUtf16Printable(entry.title), qUtf16Printable(entry.appExePath));
    }
}

} // namespace

const std::list<GamesExplorerEntry>& GamesExplorerIndex::entries() {
    return catalogue().entries;
}

std::vector<const GamesExplorerEntry*> GamesExplorerIndex::findByTitle(const QString& title) {
    constexpr int equals = 0;
    return catalogue().titles.find(title, equals);
}

const GamesExplorerIndex::Catalogue& GamesExplorerIndex::catalogue() {
    return m_catalogue.entries(build);
}

void GamesExplorerIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("GamesExplorer");
    Logger logger = Logger::create("Quorvan.Finders.GameForWindow");
    for (const quint32 view : views) {
        readEntries(view, catalogue.entries, logger);
    }
    if (catalogue.entries.empty()) {
        logger.logAlways("No apps");
    }
    for (const GamesExplorerEntry& entry : catalogue.entries) {
        catalogue.titles.add(entry.title, entry);
        Trace::entry(entry.title, entry.configApplicationPath);
    }
    section.setEntries(catalogue.entries.size());
}
