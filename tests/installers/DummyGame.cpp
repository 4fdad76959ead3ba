#include "installers/DummyGame.h"

#include <QDir>
#include <QtGlobal>

namespace {

const char* const machine = "HKEY_LOCAL_MACHINE";
const char* const user = "HKEY_CURRENT_USER";

QString menuBelow(const char* variable) {
    return qEnvironmentVariable(variable) + "\\Microsoft\\Windows\\Start Menu\\Programs\\Spiele";
}

QString folderAsFound(Registered registered, const QString& folder) {
    switch (registered) {
    case Registered::FolderWithSeparator:
        return folder + '\\';
    case Registered::Uninstaller:
        return QDir::fromNativeSeparators(folder);
    case Registered::Folder:
        break;
    }
    return folder;
}

} // namespace

Answer DummyGame::registeredIn(const QString& folder) const {
    const QString found = folderAsFound(registered, folder);
    const QString game = found + '\\' + executable;
    return foundIn(found, {game, found + '\\' + editor()});
}

Answer DummyGame::missedIn(const QString& folder) const {
    // The uninstaller's folder is looked in last; Windows Installer tells of none.
    const bool hasUninstaller = registered != Registered::FolderWithSeparator;
    return failedIn(folderAsFound(hasUninstaller ? Registered::Uninstaller : registered, folder));
}

Answer DummyGame::linkedIn(const QString& folder) const {
    const QString found = QDir::fromNativeSeparators(folder);
    return foundIn(found, {found + '/' + executable});
}

std::vector<DummyGame> dummyGames() {
    const QString programs = qEnvironmentVariable("ProgramFiles") + '\\';
    const QString ownPrograms = qEnvironmentVariable("LOCALAPPDATA") + "\\Programs\\";
    const QString ownMenu = menuBelow("APPDATA");
    const QString commonMenu = menuBelow("ProgramData");
    const auto view64 = QSettings::Registry64Format;
    const auto view32 = QSettings::Registry32Format;
    return {
        {"Lantern",
         "Lantern Harbour",
         "lantern.exe",
         "lantern.exe",
         programs + "Lantern Harbour",
         machine,
         view64,
         "LanternHarbour",
         Registered::Folder,
         {commonMenu}},
        {"Kaefer",
         "Käferrennen & Söhne",
         "kaefer.exe",
         "kaefer.exe",
         "D:\\Spiele\\Käferrennen & Söhne",
         machine,
         view64,
         "KaeferrennenUndSoehne",
         Registered::Uninstaller,
         {commonMenu}},
        {"Karton",
         "Kartonrakete",
         "karton.exe",
         "kartonrakete.exe",
         ownPrograms + "Kartonrakete",
         user,
         view64,
         "Kartonrakete",
         Registered::Folder,
         {ownMenu}},
        {"Keiso",
         "競走クラブ",
         "keiso.exe",
         "KeisoClub.exe",
         "D:\\Spiele\\競走クラブ",
         machine,
         view32,
         "KeisoClub",
         Registered::Folder,
         {}},
        // Wine puts the shortcuts of Windows Installer into the user's menu, Windows those for all users into theirs.
        {"Zeppelin",
         "Zeppelinpost",
         "zeppelin.msi",
         "zeppelin.exe",
         programs + "Zeppelinpost",
         machine,
         view64,
         "{3D0A6F4E-91C7-4B52-8E1D-6A57C2B9F083}",
         Registered::FolderWithSeparator,
         {ownMenu, commonMenu}},
    };
}
