#include "randompcs/Draft.h"
#include "randompcs/Stores.h"

namespace {

using Recordings::RegistryView;
using Root = Recordings::RegKey::Root;

const QString uninstall = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\";
const QString gameExplorer = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games\\";

const DraftKey uninstallKeys[] = {
    {Root::LocalMachine, RegistryView::Bits64, uninstall},
    {Root::LocalMachine, RegistryView::Bits32, uninstall},
    {Root::CurrentUser, RegistryView::Bits64, uninstall},
};

QString uninstaller(Draft& draft, const QString& folder) {
    const QString program = draft.sloppily(folder) + "\\unins000.exe";
    switch (draft.dice.below(8)) {
    case 0:
        return '"' + program + "\" /SILENT /LOG=\"C:\\log \" x";
    case 1:
        return program + " /x /y=D:\\z";
    case 2:
        return "MsiExec.exe /X{1234}";
    case 3:
        return "\"C:\\ProgramData\\Package Cache\\{1}\\setup.exe\"  /uninstall";
    case 4:
        return {};
    case 5:
        return "unins000.exe";
    default:
        return '"' + program + '"';
    }
}

void addUninstallEntry(Draft& draft) {
    const DraftGame game = draft.newGame();
    DraftKey key = draft.dice.pick(uninstallKeys);
    key.path += draft.dice.oneIn(2) ? game.name : '{' + QString::number(draft.dice.below(9)) + "}_is1";
    draft.oddText(key, "DisplayName", game.name);
    const bool hasLocation = !draft.dice.oneIn(3);
    draft.oddText(key, "InstallLocation", hasLocation ? draft.sloppily(game.folder) : QString());
    draft.oddText(key, "UninstallString", uninstaller(draft, game.folder));
    draft.oddText(key, "Publisher", draft.word());
    draft.lookFor({{"type", "uninstall"},
                   {"displayName", draft.inOtherCase(draft.dice.oneIn(3) ? draft.partOf(game.name) : game.name)},
                   {"matchMode", draft.dice.below(3)},
                   {"executables", draft.executablesOf(game)}});
}

QString shortcutFolder(Draft& draft) {
    const QString menus[] = {"C:\\ProgramData\\Start Menu", "D:\\Menü 競走 🎮"};
    QString folder = draft.dice.pick(menus);
    for (int depth = draft.dice.below(3); depth > 0; --depth) {
        folder += '\\' + draft.word() + QString::number(depth);
    }
    return folder;
}

/// A part of the path of its executables, which a shortcut's target may contain.
QJsonArray partsOf(Draft& draft, const DraftGame& game) {
    QJsonArray parts = draft.executablesOf(game);
    if (draft.dice.oneIn(4)) {
        parts.append(draft.dice.oneIn(2) ? draft.word() : QString()); // which every target contains
    }
    return parts;
}

} // namespace

void addUninstallEntries(Draft& draft) {
    for (int count = draft.dice.between(2, 6); count > 0; --count) {
        addUninstallEntry(draft);
    }
}

void addGamesExplorer(Draft& draft) {
    for (int count = draft.dice.between(1, 3); count > 0; --count) {
        const DraftGame game = draft.newGame();
        const auto view = draft.dice.oneIn(2) ? RegistryView::Bits64 : RegistryView::Bits32;
        const DraftKey key{Root::LocalMachine, view, gameExplorer + '{' + QString::number(draft.dice.below(6)) + '}'};
        draft.oddText(key, "Title", game.name);
        if (draft.dice.oneIn(2)) {
            draft.oddText(key, "AppExePath", draft.sloppily(game.folder + '\\' + game.executables.first()));
        }
        draft.oddText(key, "ConfigApplicationPath", draft.sloppily(game.folder));
        draft.lookFor({{"type", "gameForWindow"},
                       {"title", draft.inOtherCase(game.name)},
                       {"executables", draft.executablesOf(game)}});
    }
}

void addStartMenus(Draft& draft) {
    draft.pc.shellFolders.insert(11, draft.inOtherCase("D:\\Menü 競走 🎮"));
    draft.pc.shellFolders.insert(22, "C:\\ProgramData\\Start Menu");
    for (int count = draft.dice.between(1, 5); count > 0; --count) {
        const DraftGame game = draft.newGame();
        const QString ending = draft.dice.oneIn(8) ? ".LNK" : draft.dice.oneIn(8) ? ".url" : ".lnk";
        const QString path = shortcutFolder(draft) + '\\' + game.name + ending;
        draft.shortcut(path, QString(game.folder + '\\' + game.executables.first()).replace('/', '\\'));
        auto& file = *draft.pc.drives.find(*Recordings::DrivePath::parse(path));
        file.isHidden = draft.dice.oneIn(6);
        file.isSystem = draft.dice.oneIn(6);
        draft.lookFor({{"type", "startMenu"},
                       {"name", draft.inOtherCase(draft.dice.oneIn(3) ? draft.partOf(game.name) : game.name)},
                       {"matchMode", draft.dice.below(3)},
                       {"executables", partsOf(draft, game)}});
    }
}
