#include "InstalledGames.h"

#include "platform/Folders.h"
#include "support/RegistryKey.h"

namespace InstalledGames {

namespace {

using Platform::RootKey;

constexpr int shortcutsInFolder = 20;
constexpr int ways = 4; ///< of being installed: Steam's, an uninstaller's, the Epic launcher's, none

QString key(const char16_t* path, const QString& name) {
    return QString::fromUtf16(path) + QLatin1Char('\\') + name;
}

void registerGame(BenchPc& pc, int i) {
    const quint32 view = i % 2 == 0 ? View::view64 : View::view32;
    const QString folder = QStringLiteral("C:\\Program Files\\") + name(i);
    pc.key(RootKey::LocalMachine, key(uninstallKey, name(i) + QStringLiteral("_is1")), view,
           {{QStringLiteral("DisplayName"), name(i)},
            {QStringLiteral("InstallLocation"), folder},
            {QStringLiteral("UninstallString"), QLatin1Char('"') + folder + QStringLiteral("\\unins000.exe\"")}});
    pc.key(RootKey::LocalMachine, key(gamesExplorerKey, QStringLiteral("{1c9a2b40-52f0-4e0d-%1}").arg(i)), view,
           {{QStringLiteral("Title"), name(i)},
            {QStringLiteral("AppExePath"), folder + QLatin1Char('\\') + executable()},
            {QStringLiteral("ConfigApplicationPath"), folder}});
}

QByteArray epicManifest(int i) {
    return QStringLiteral("{\"FormatVersion\": 0, \"LaunchExecutable\": \"game.exe\", \"LaunchCommand\": \"\",\n"
                          "\"InstallLocation\": \"D:\\\\Epic Games\\\\%1\", \"DisplayName\": \"%1\",\n"
                          "\"AppCategories\": [\"public\", \"games\"], \"InstallSize\": 1234567,\n"
                          "\"CatalogNamespace\": \"5d1c0b7e9a3f4826\", \"CatalogItemId\": \"e8f20a94c6b74d13\",\n"
                          "\"AppName\": \"Wacholder%2\"}\n")
        .arg(name(i))
        .arg(i)
        .toUtf8();
}

void addFiles(BenchPc& pc, int files) {
    for (int i = 0; i < files; ++i) {
        pc.file(QString::fromUtf16(steamFolder) + QStringLiteral("\\appmanifest_%1.acf").arg(i));
    }
    for (int i = 0; i < files; ++i) {
        pc.file(QString::fromUtf16(epicFolder) + QStringLiteral("\\%1.item").arg(i), epicManifest(i));
    }
    for (int i = 0; i < files; ++i) {
        pc.file(QString::fromUtf16(oculusFolder) + QStringLiteral("\\Manifests\\galactic-postman-%1.json.mini").arg(i));
    }
    const QString menus[] = {pc.shellFolder(Platform::csidlStartMenu), pc.shellFolder(Platform::csidlCommonStartMenu)};
    for (int i = 0; i < files; ++i) {
        const int folder = i / shortcutsInFolder;
        pc.file(menus[folder % 2] + QStringLiteral("\\Programs\\Space Racing %1\\").arg(folder) + shortcutName(i) +
                QStringLiteral(".lnk"));
    }
}

void addExecutables(BenchPc& pc) {
    const QString folders[ways] = {QStringLiteral("D:\\Steam\\steamapps\\common\\"),
                                   QStringLiteral("C:\\Program Files\\"),
                                   QStringLiteral("D:\\Epic Games\\"),
                                   {}};
    for (int i = 0; i < asked; ++i) {
        if (!folders[i % ways].isEmpty()) {
            pc.file(folders[i % ways] + name(i) + QLatin1Char('\\') + executable());
        }
    }
}

} // namespace

QString name(int number) {
    return QStringLiteral("Galactic Postman %1").arg(number);
}

QString shortcutName(int number) {
    return QStringLiteral("Space Racer %1").arg(number);
}

QString executable() {
    return QStringLiteral("game.exe");
}

int found(int keys, int files) {
    int games = 0;
    for (int i = 0; i < asked; ++i) {
        const int way = i % ways;
        games += (way == 1 && i < keys) || ((way == 0 || way == 2) && i < files) ? 1 : 0;
    }
    return games;
}

void install(BenchPc& pc, int keys, int files) {
    for (int i = 0; i < keys; ++i) {
        registerGame(pc, i);
    }
    pc.key(RootKey::CurrentUser, QStringLiteral("Software\\Epic Games\\EOS"), View::view64,
           {{QStringLiteral("ModSdkMetadataDir"), QString::fromUtf16(epicFolder)}});
    for (const quint32 view : {View::view32, View::view64}) {
        pc.key(RootKey::ClassesRoot, QStringLiteral("steam\\Shell\\Open\\Command"), view,
               {{QString(), QStringLiteral("D:\\Steam\\steam.exe")}});
    }
    pc.key(RootKey::CurrentUser, QStringLiteral("Software\\Oculus VR, LLC\\Oculus\\Libraries\\1"), View::view64,
           {{QStringLiteral("Path"), QString::fromUtf16(oculusFolder)}});
    pc.file(QStringLiteral("D:\\Steam\\steam.exe"));
    pc.file(QStringLiteral("E:\\Oculus\\Software\\readme.txt"));
    addFiles(pc, files);
    addExecutables(pc);
    pc.userChoice(name(0), QStringLiteral("D:\\Steam\\steamapps\\common\\") + name(0));
}

} // namespace InstalledGames
