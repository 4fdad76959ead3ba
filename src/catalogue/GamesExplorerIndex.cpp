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

} // namespace

GamesExplorerIndex::GamesExplorerIndex()
    : Index(Trace::IndexName::gamesExplorer) {}

std::vector<GamesExplorerEntry> GamesExplorerIndex::findByTitle(const QString& title) {
    return built(m_titles).find(title, MatchMode::equals);
}

void GamesExplorerIndex::build(std::list<GamesExplorerEntry>& entries) {
    Logger logger = Logger::create("Quorvan.Finders.GameForWindow");
    for (const quint32 view : views) {
        read(view, entries, logger);
    }
    if (entries.empty()) {
        logger.logAlways("No apps");
    }
}

void GamesExplorerIndex::read(quint32 view, std::list<GamesExplorerEntry>& entries, Logger& logger) {
    QStringList names;
    RegistryKey::open(rootKeyPath(), Hive::localMachine, view).subKeyNames(names);
    m_titles.reserve(static_cast<std::size_t>(names.size()));
    takeEach(std::move(names), [&](const QString& name) {
        const GamesExplorerEntry entry = readEntry(name, view);
        logger.logAlways("Title: %ls, %ls", qUtf16Printable(entry.title), qUtf16Printable(entry.appExePath));
        add(entries, entry, entry.title, entry.configApplicationPath, m_titles.row(entry.title, entry));
    });
}
