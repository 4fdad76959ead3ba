#include "randompcs/RandomPc.h"

#include "randompcs/Draft.h"
#include "randompcs/Stores.h"

#include <QJsonDocument>

namespace {

using Recordings::RegistryView;
using Root = Recordings::RegKey::Root;

/// Members of a search that tries several finders, those of games that are looked for already among them.
QJsonArray someFinders(Draft& draft) {
    QJsonArray finders;
    for (int count = draft.dice.between(0, 5); count > 0; --count) {
        const QJsonObject game = draft.games.at(draft.dice.below(draft.games.size())).toObject();
        finders.append(game.value("finders").toArray().first());
    }
    return finders;
}

void addMultiFinders(Draft& draft) {
    for (int count = draft.dice.between(1, 3); count > 0; --count) {
        draft.lookFor({{"type", "multi"}, {"finders", someFinders(draft)}});
    }
}

} // namespace

void addKnownFolders(Draft& draft) {
    for (int count = draft.dice.between(1, 3); count > 0; --count) {
        const DraftGame game = draft.newGame();
        draft.lookFor(
            {{"type", "folder"}, {"folder", draft.sloppily(game.folder)}, {"executables", draft.executablesOf(game)}});
    }
}

void addUserChoices(Draft& draft) {
    for (int count = draft.dice.between(1, 3); count > 0; --count) {
        const DraftGame game = draft.newGame();
        const QString key = draft.dice.oneIn(2) ? game.name : "key" + QString::number(count);
        if (!draft.dice.oneIn(5)) {
            const QString folder = draft.sloppily(game.folder);
            draft.pc.userLocations.insert(draft.inOtherCase(key), folder);
        }
        draft.lookFor({{"type", "userProvidedLocation"}, {"key", key}, {"executables", draft.executablesOf(game)}});
    }
}

void addRuntimes(Draft& draft) {
    const QString steamVr = "D:\\" + draft.word() + "\\SteamVR\\";
    const QString bits = draft.dice.oneIn(2) ? "bin\\win32" : "bin\\win64";
    draft.oddText({Root::ClassesRoot, RegistryView::Bits64, "vrmonitor\\Shell\\Open\\Command"}, {},
                  '"' + steamVr + bits + "\\vrmonitor.exe\" \"%1\"");
    draft.oddText({Root::ClassesRoot, RegistryView::Bits64, "steamvr\\Shell\\Open\\Command"}, {},
                  draft.dice.oneIn(4) ? "C:\\Veltrane\\x.exe" : "x");
    if (!draft.dice.oneIn(4)) {
        draft.file(steamVr + "bin\\win64\\vrserver.exe");
    }
    // Ends in letters that every code page has, as a variable of the environment must.
    const QString oculus = "C:\\Program Files\\Oculus" + QString(draft.dice.oneIn(3) ? "\\" : "");
    if (!draft.dice.oneIn(4)) {
        draft.pc.environment.insert("OculusBase", oculus);
        draft.file("C:\\Program Files\\Oculus\\Support\\oculus-runtime\\" +
                   QString(draft.dice.oneIn(4) ? "LibOVRRT32_1.dll" : "LibOVRRT64_1.dll"));
    }
    const auto view = draft.dice.oneIn(5) ? RegistryView::Bits32 : RegistryView::Bits64;
    draft.oddText({Root::LocalMachine, view, "Software\\Varjo\\Runtime"}, "InstallDir", "D:\\" + draft.word() + " ");
    draft.oddText({Root::LocalMachine, view, "Software\\Khronos\\OpenXR\\1"}, "ActiveRuntime",
                  "C:\\" + draft.word() + "\\openxr.json");
    const QChar dash(draft.dice.oneIn(4) ? 0x2013 : 0x96);
    draft.oddText({Root::CurrentUser, view, QString("Software\\Lumavex %1 Standalone").arg(dash)}, {},
                  "C:\\" + draft.word());
}

RandomPc makeRandomPc(quint32 seed, const QMap<QChar, QString>& volumes) {
    Draft draft(seed, volumes);
    draft.pc.shellFolders.insert(35, "C:\\ProgramData");
    for (const auto add : {addSteam, addEpicLauncher, addOculusStore, addAppPackages, addUninstallEntries,
                           addGamesExplorer, addStartMenus, addKnownFolders, addUserChoices, addRuntimes}) {
        add(draft);
    }
    addMultiFinders(draft);
    return {std::move(draft.pc), QJsonDocument(QJsonObject{{"games", draft.games}}).toJson()};
}
