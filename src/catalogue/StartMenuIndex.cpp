#include "catalogue/StartMenuIndex.h"

#include "catalogue/ShortcutWalk.h"
#include "platform/Folders.h"
#include "support/KnownFolders.h"
#include "support/Paths.h"
#include "support/Trace.h"

namespace {

constexpr int startMenus[] = {Platform::csidlStartMenu, Platform::csidlCommonStartMenu};
constexpr quint64 longestWalkMs = 30'000;

/// By its text, as asking the file system would open each shortcut.
QString nameOf(const QString& shortcut) {
    const QString file = shortcut.mid(shortcut.lastIndexOf(Paths::separatorFor(shortcut)) + 1);
    return file.left(file.lastIndexOf(QLatin1Char('.')));
}

} // namespace

const QStringList& StartMenuIndex::entries() {
    return catalogue().entries;
}

std::vector<const QString*> StartMenuIndex::findByName(const QString& name, int matchMode) {
    return catalogue().names.find(name, matchMode);
}

const StartMenuIndex::Catalogue& StartMenuIndex::catalogue() {
    return m_catalogue.entries(build);
}

void StartMenuIndex::build(Catalogue& catalogue) {
    Trace::IndexSection section("StartMenu");
    for (const int csidl : startMenus) {
        catalogue.entries += shortcutsBelow(knownFolderPath(csidl), longestWalkMs);
    }
    for (const QString& shortcut : qAsConst(catalogue.entries)) {
        catalogue.names.add(nameOf(shortcut), shortcut);
        Trace::entry(nameOf(shortcut), shortcut);
    }
    section.setEntries(static_cast<std::size_t>(catalogue.entries.size()));
}
