#include "randompcs/Stores.h"

#include "randompcs/Draft.h"

#include <QJsonDocument>

namespace {

using Recordings::RegistryView;
using Root = Recordings::RegKey::Root;

constexpr const char* steamFolders[] = {"C:\\Program Files (x86)\\Steam", "D:\\Steam", "E:\\競走\\Steam 🎮"};
constexpr const char* libraryFolders[] = {"D:\\SteamLibrary", "E:\\Spiele\\Käfer", "C:\\競走\\🎮", "D:\\gone"};

const DraftKey steamHandler{Root::ClassesRoot, RegistryView::Bits64, "steam\\Shell\\Open\\Command"};

/// One of the ways in which the client is found.
void registerClient(Draft& draft, const QString& folder) {
    const auto view = draft.dice.oneIn(2) ? RegistryView::Bits64 : RegistryView::Bits32;
    switch (draft.dice.below(5)) {
    case 0:
        draft.shortcut("C:\\ProgramData\\Start Menu\\Programs\\Steam\\Steam.lnk", folder + "\\steam.exe");
        break;
    case 1:
        draft.oddText({Root::LocalMachine, view, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam"},
                      "UninstallString", folder + "\\uninstall.exe");
        break;
    case 2:
        draft.text(steamHandler, {}, '"' + draft.sloppily(folder) + "\\Steam.exe\"  \"%1\"");
        break;
    default:
        draft.oddText(steamHandler, {}, '"' + draft.inOtherCase(folder) + "\\steam.exe\" -- \"%1\"");
    }
}

/// The list of the libraries as Steam writes it, and lines that are none.
QByteArray librariesFile(Draft& draft, const QStringList& libraries) {
    QString text = "\"libraryfolders\"\n{\n";
    for (const QString& library : libraries) {
        const QString written = draft.dice.oneIn(4) ? draft.sloppily(library) : library;
        const QString path = QString(written).replace('\\', draft.dice.oneIn(8) ? "\\" : "\\\\");
        text += QString("\t\"%1\"\n\t{\n\t\t\"path\"\t\t\"%2\"\n\t\t\"label\"\t\t\"\"\n").arg(libraries.size());
        text = text.arg(path);
        text += draft.dice.oneIn(6) ? "\t\t\"path\"\n\"path\" \"\"\n" : "";
        text += "\t\t\"apps\"\n\t\t{\n\t\t\t\"7\"\t\t\"123\"\n\t\t}\n\t}\n";
    }
    text += "}\n";
    if (draft.dice.oneIn(3)) {
        text.replace("\n", "\r\n");
    }
    return draft.dice.oneIn(8) ? text.toUtf8().insert(40, '\0') : text.toUtf8();
}

QString manifestName(Draft& draft, const QString& appId) {
    switch (draft.dice.below(12)) {
    case 0:
        return "appmanifest_" + appId + ".acf.bak";
    case 1:
        return "AppManifest_" + appId + ".acf";
    case 2:
        return "appmanifest_" + appId + ".ACF";
    case 3:
        return "appmanifest_" + appId + ".2.acf";
    default:
        return "appmanifest_" + appId + ".acf";
    }
}

void addSteamGame(Draft& draft, const QString& library) {
    const DraftGame game = draft.newGameIn(library + "\\steamapps\\common");
    const QString appId = QString::number(draft.dice.between(1, 40) * 10);
    QString folderName = draft.inOtherCase(game.name);
    if (draft.dice.oneIn(3)) {
        const auto view = draft.dice.oneIn(2) ? RegistryView::Bits64 : RegistryView::Bits32;
        const DraftKey key{Root::LocalMachine, view,
                           "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\Uninstall\\Steam App " + appId};
        draft.oddText(key, "DisplayName", game.name);
        draft.oddText(key, "InstallLocation", draft.sloppily(game.folder));
        draft.oddText(key, "UninstallString", "\"C:\\x\\steam.exe\" steam://uninstall/" + appId);
        folderName = draft.dice.oneIn(2) ? QString() : folderName;
    } else {
        draft.file(library + "\\steamapps\\" + manifestName(draft, appId), "\"AppState\"\n{\n}\n");
    }
    draft.lookFor({{"type", "steam"},
                   {"appId", appId},
                   {"installFolderName", folderName},
                   {"executables", draft.executablesOf(game)}});
}

QByteArray epicManifest(Draft& draft, const DraftGame& game) {
    QJsonObject manifest{{"AppName", "App" + game.name},
                         {"DisplayName", draft.inOtherCase(game.name)},
                         {"InstallLocation", draft.sloppily(game.folder)},
                         {"CatalogNamespace", "n&%" + draft.word()},
                         {"CatalogItemId", draft.word()},
                         {"LaunchExecutable", game.executables.first()},
                         {"bIsIncompleteInstall", false},
                         {"InstallTags", QJsonArray{"x"}}};
    for (const char* const member : {"AppName", "DisplayName", "InstallLocation", "CatalogItemId"}) {
        if (draft.dice.oneIn(12)) {
            manifest.insert(member, draft.dice.oneIn(2) ? QJsonValue(7) : QJsonValue(""));
        }
    }
    const QByteArray json = QJsonDocument(manifest).toJson();
    switch (draft.dice.below(16)) {
    case 0:
        return "\xEF\xBB\xBF" + json;
    case 1:
        return json.left(json.size() / 2);
    case 2:
        return '[' + json + ']';
    case 3:
        return {};
    default:
        return json;
    }
}

QString oculusPath(Draft& draft, const QString& folder) {
    const QString volume = draft.pc.volumes.value(folder.at(0));
    const bool isByLetter = draft.dice.oneIn(3) || volume.isEmpty();
    return isByLetter ? draft.sloppily(folder) : draft.inOtherCase(volume) + folder.mid(3);
}

void addOculusGame(Draft& draft, const QString& library) {
    const DraftGame game = draft.newGameIn(library + "\\Software");
    const QString appId = "app-" + draft.inOtherCase(game.name);
    const char* const endings[] = {".json.mini", ".json.mini", ".json.mini",
                                   ".JSON.MINI", ".json",      "_assets.json.mini"};
    draft.file(library + "\\Manifests\\" + appId + draft.dice.pick(endings), "{}");
    draft.lookFor({{"type", "oculusStore"},
                   {"appId", draft.dice.oneIn(2) ? appId : appId.section('.', 0, 0)},
                   {"softwareFolder", draft.inOtherCase(game.name)},
                   {"executables", draft.executablesOf(game)}});
}

} // namespace

void addSteam(Draft& draft) {
    const QString client = QString::fromUtf8(draft.dice.pick(steamFolders));
    registerClient(draft, client);
    if (!draft.dice.oneIn(10)) {
        draft.file(client + "\\steam.exe");
    }
    QStringList libraries{client};
    for (int count = draft.dice.below(4); count > 0; --count) {
        libraries.append(QString::fromUtf8(draft.dice.pick(libraryFolders)));
    }
    draft.file(client + "\\steamapps\\libraryfolders.vdf", librariesFile(draft, libraries));
    for (int count = draft.dice.between(1, 6); count > 0; --count) {
        const QString library = draft.dice.pick(libraries);
        if (!library.endsWith("gone")) {
            addSteamGame(draft, library);
        }
    }
}

void addEpicLauncher(Draft& draft) {
    const QString usual = "C:\\ProgramData\\Epic\\EpicGamesLauncher\\Data\\Manifests";
    const bool isUsual = draft.dice.oneIn(2);
    const QString folder = isUsual ? usual : "D:\\" + draft.word() + "\\Manifests";
    if (!isUsual) {
        draft.oddText({Root::CurrentUser, RegistryView::Bits64, "Software\\Epic Games\\EOS"}, "ModSdkMetadataDir",
                      draft.sloppily(folder));
    }
    for (int number = draft.dice.between(1, 4); number > 0; --number) {
        const DraftGame game = draft.newGame();
        const QString ending = draft.dice.oneIn(8) ? ".ITEM" : draft.dice.oneIn(8) ? ".item.bak" : ".item";
        const QString path = folder + '\\' + QString::number(number) + draft.word() + ending;
        draft.file(path, epicManifest(draft, game));
        draft.lookFor({{"type", "epicStore"},
                       {"name", draft.inOtherCase(draft.dice.oneIn(3) ? draft.partOf(game.name) : game.name)},
                       {"matchMode", draft.dice.below(3)},
                       {"executables", draft.executablesOf(game)}});
    }
}

void addOculusStore(Draft& draft) {
    const char* const folders[] = {"D:\\Oculus Apps", "C:\\Oculus\\Software", "E:\\競走\\Öculus", "D:\\half"};
    for (int number = draft.dice.between(1, 3); number > 0; --number) {
        const QString folder = QString::fromUtf8(draft.dice.pick(folders));
        const DraftKey key{Root::CurrentUser, RegistryView::Bits64,
                           "Software\\Oculus VR, LLC\\Oculus\\Libraries\\{" + QString::number(number) + '}'};
        draft.oddText(key, "Path", oculusPath(draft, folder));
        draft.folder(folder + "\\Software");
        if (draft.dice.oneIn(10)) {
            draft.file(folder + "\\manifests");
        } else if (!folder.endsWith("half")) {
            addOculusGame(draft, folder);
        }
    }
}

void addAppPackages(Draft& draft) {
    draft.pc.packages.emplace();
    for (int count = draft.dice.below(4); count > 0; --count) {
        const QString name = "Maker" + QString::number(draft.dice.below(5));
        const QString family = name + ".Game_abcdefgh12345";
        const QString fullName = name + ".Game_1.0.0." + QString::number(count) + "_x64__abcdefgh12345";
        draft.key({Root::CurrentUser, RegistryView::Bits64,
                   "Software\\Classes\\Local Settings\\Software\\Microsoft\\Windows\\CurrentVersion\\AppModel"
                   "\\Repository\\Packages\\" +
                       fullName});
        if (!draft.dice.oneIn(4)) {
            QStringList ids;
            for (int i = draft.dice.below(3); i > 0; --i) {
                ids.append(family + "!App" + QString::number(i));
            }
            draft.pc.packages->push_back({family, fullName, ids});
        }
        draft.lookFor({{"type", "universalApp"}, {"packageFamily", draft.inOtherCase(family)}});
    }
}
