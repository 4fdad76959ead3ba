#include "recorded/FullPc.h"

#include "FindProgram.h"
#include "recordings/ShellLink.h"

#include <QFileInfo>

namespace {

constexpr const char* registry = R"(Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Microsoft\Windows\CurrentVersion\Uninstall\Anneliese Ö_is1]
"DisplayName"="Wal"
"InstallLocation"="C:\\Users\\ANNELI~1\\Spiele\\Wal"
"Password"="GEHEIM"

[HKEY_LOCAL_MACHINE\Software\Wow6432Node\Microsoft\Windows\CurrentVersion\Uninstall\Hai]
"DisplayName"=hex(1):48,00,61,00,69,00
"UninstallString"="\"D:\\Spiele\\Hai\\unins000.exe\" /LOG=\"C:\\Users\\Anneliese Ö\\hai.log\""
"GEHEIM"="x"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\Uninstall\Steam App 77]
"InstallLocation"="D:\\Steam\\steamapps\\common\\Robbe "
"UninstallString"="steam://uninstall/77"
"DisplayName"="Robbe"

[HKEY_LOCAL_MACHINE\Software\Microsoft\Windows\CurrentVersion\GameUX\Games\{1}]
"Title"="Qualle"
"ConfigApplicationPath"="D:\\Spiele\\Qualle"
"Owner"="GEHEIM"

[HKEY_CLASSES_ROOT\steam\Shell\Open\Command]
@="\"D:\\Steam\\steam.exe\" -- \"%1\""
"GEHEIM"="x"

[HKEY_CURRENT_USER\Software\Oculus VR, LLC\Oculus\Libraries\1]
"Path"="D:\\Oculus auf KAEFER-PC"
"Secret"="GEHEIM"

[HKEY_CURRENT_USER\Software\Classes\Local Settings\Software\Microsoft\Windows\CurrentVersion\AppModel\Repository\Packages\Maker.Krake_1.0_x64__abc]
"GEHEIM"="x"

[HKEY_CURRENT_USER\Software\Classes\Local Settings\Software\Microsoft\Windows\CurrentVersion\AppModel\Repository\Packages\GEHEIM.Gone_1.0_x64__abc]

[HKEY_CURRENT_USER\Software\GEHEIM]
"x"="GEHEIM"
)";

constexpr const char* description = R"({
"shellFolders": {"startMenu": "C:\\Users\\Anneliese Ö\\Start Menu", "commonAppData": "C:\\ProgramData",
                 "personal": "C:\\GEHEIM"},
"environment": {"USERNAME": "Anneliese Ö", "USERPROFILE": "C:\\Users\\Anneliese Ö", "COMPUTERNAME": "KAEFER-PC",
                "TOKEN": "GEHEIM"},
"packages": [{"family": "Maker.Krake_abc", "fullName": "Maker.Krake_1.0_x64__abc",
              "applicationIds": ["Maker.Krake_abc!App", "Maker.Krake_abc!Beta"]},
             {"family": "GEHEIM_abc", "fullName": "GEHEIM_1.0_x64__abc"}],
"userLocations": {"krabbe": "C:\\Users\\user\\Spiele", "tang": "D:\\Spiele von Anneliese Ö\\Tang"},
"hidden": ["C:\\Users\\Anneliese Ö\\Start Menu\\desktop.ini", "D:\\GEHEIM.txt"]
})";

constexpr const char* epicManifest = R"({"AppName": "E", "DisplayName": "Epische Muschel", "CatalogNamespace": "n",
"CatalogItemId": "i", "InstallLocation": "C:\\Users\\Anneliese \u00d6\\Epic\\Muschel"})";

constexpr const char* gamesJson = R"({"games": [
{"name": "Wal", "finders": [{"type": "uninstall", "displayName": "Wal", "executables": ["bin\\wal.exe", "wal.bat"]}]},
{"name": "Hai", "finders": [{"type": "uninstall", "displayName": "ha", "executables": ["Hai.exe"], "matchMode": 1}]},
{"name": "Robbe", "finders": [{"type": "steam", "appId": "77", "installFolderName": "", "executables": ["R.exe"]}]},
{"name": "Lachs", "finders": [{"type": "steam", "appId": "78", "installFolderName": "Lachs",
                               "executables": ["lachs.exe"]}]},
{"name": "Qualle", "finders": [{"type": "gameForWindow", "title": "qualle", "executables": ["q.com"]}]},
{"name": "Aal", "finders": [{"type": "startMenu", "name": "Aal", "executables": ["aal.exe"]}]},
{"name": "Muschel", "finders": [{"type": "epicStore", "name": "muschel", "executables": ["m.exe"], "matchMode": 1}]},
{"name": "Delfin", "finders": [{"type": "oculusStore", "appId": "delfin", "softwareFolder": "delfin",
                                "executables": ["d.cmd"]}]},
{"name": "Krake", "finders": [{"type": "universalApp", "packageFamily": "Maker.Krake_abc"}]},
{"name": "Tang", "finders": [{"type": "userProvidedLocation", "key": "Tang", "executables": ["tang.exe"]}]},
{"name": "Krabbe", "finders": [{"type": "userProvidedLocation", "key": "krabbe", "executables": ["krabbe.exe"]}]}
]})";

/// Files that finders look at, and files beside them.
constexpr const char* emptyFiles[] = {
    "C/Users/ANNELI~1/Spiele/Wal/bin/wal.exe",
    "C/Users/ANNELI~1/Spiele/Wal/wal.bat",
    "C/Users/user/Spiele/krabbe.exe",
    "C/Users/Anneliese Ö/Start Menu/desktop.ini",
    "C/Users/Anneliese Ö/Epic/Muschel/m.exe",
    "C/Users/Anneliese Ö/GEHEIM.exe",
    "C/Users/Anneliese Ö/Documents/GEHEIM.txt",
    "D/Spiele/Hai/Hai.exe",
    "D/Spiele/Hai/unins000.exe",
    "D/Spiele/Hai/GEHEIM.txt",
    "D/Spiele/Qualle/q.com",
    "D/Steam/steam.exe",
    "D/Steam/GEHEIM.ini",
    "D/Steam/steamapps/GEHEIM.txt",
    "D/Steam/steamapps/common/Robbe/R.exe",
    "D/Steam/steamapps/common/Lachs/lachs.exe",
    "D/Oculus auf KAEFER-PC/Software/delfin/d.cmd",
    "D/Oculus auf KAEFER-PC/Software/GEHEIM.txt",
    "D/Spiele von Anneliese Ö/Tang/tang.exe",
};

} // namespace

const QString FullPc::secret = "GEHEIM";

const QString FullPc::summary =
    "  registry        7 keys, 11 values\n"
    "  drives          35 folders, 20 file names (13 executables), 1 shortcut, the contents of 2 files\n"
    "  app packages    1\n"
    "  user's choices  2\n";

FullPc::FullPc(const FindProgram& program)
    : m_folder(QFileInfo(program.file("full/pc.json", description)).path())
    , m_catalogue(program.file("full.json", gamesJson)) {
    program.file("full/registry/all.reg", registry);
    const QString drives = "full/drives/";
    for (const char* const file : emptyFiles) {
        program.file(drives + file, "");
    }
    program.file(drives + "D/Spiele/Hai/save.dat", "GEHEIM");
    program.file(drives + "D/Spiele/Hai/data.exe", "GEHEIM");
    program.file(drives + "D/Steam/steamapps/appmanifest_78.acf", "GEHEIM");
    program.file(drives + "D/Steam/steamapps/libraryfolders.vdf", "\"path\" \"C:\\\\Users\\\\Anneliese Ö\\\\Steam\"\n");
    program.file(drives + "C/Users/Anneliese Ö/Steam/steamapps/appmanifest_79.acf", "GEHEIM");
    program.file(drives + "D/Oculus auf KAEFER-PC/Manifests/delfin.json.mini", "GEHEIM");
    program.file(drives + "C/ProgramData/Epic/EpicGamesLauncher/Data/Manifests/1.item", epicManifest);
    program.file(drives + "C/ProgramData/Epic/EpicGamesLauncher/Data/Manifests/2.txt", "GEHEIM");
    program.file(drives + "C/Users/Anneliese Ö/Start Menu/Anneliese Ö/Aal.lnk",
                 Recordings::renderShellLink("D:\\Spiele von Anneliese Ö\\aal.exe") + "GEHEIM");
}
