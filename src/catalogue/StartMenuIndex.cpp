#include "catalogue/StartMenuIndex.h"

#include "platform/Folders.h"
#include "support/KnownFolders.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace {

constexpr int startMenus[] = {Platform::csidlStartMenu, Platform::csidlCommonStartMenu};
constexpr quint64 longestWalkMs = 30'000;

/// By its text, as asking the file system would open each shortcut.
QString nameOf(const QString& shortcut) {
    const int begin = shortcut.lastIndexOf(Paths::separator()) + 1;
    return shortcut.mid(begin, shortcut.lastIndexOf(QLatin1Char('.')) - begin);
}

} // namespace

StartMenuIndex::StartMenuIndex(const WalkSource& source)
    : Index(Trace::IndexName::startMenu)
    , m_source(source) {}

std::vector<QString> StartMenuIndex::findByName(const QString& name, int matchMode) {
    return built(m_names).find(name, matchMode);
}

void StartMenuIndex::build(QStringList& entries) {
    for (const int csidl : startMenus) {
        const QStringList shortcuts = shortcutsBelow(knownFolderPath(csidl), longestWalkMs, m_source);
        entries.reserve(entries.size() + shortcuts.size());
        m_names.reserve(static_cast<std::size_t>(shortcuts.size()));
        for (const QString& shortcut : shortcuts) {
            const QString name = nameOf(shortcut);
            add(entries, shortcut, name, shortcut, m_names.row(name, shortcut));
        }
    }
}
