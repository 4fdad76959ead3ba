#include "faults/EveryFinder.h"

#include "common/EpicLauncher.h"
#include "common/Games.h"
#include "common/OculusStore.h"
#include "common/Programs.h"
#include "common/TestPc.h"
#include "core/Locations.h"
#include "platform/Folders.h"

namespace {

constexpr int contains = 1;
constexpr int equals = 0;

QString nameOf(int game) {
    return "Käfer " + QString::number(game);
}

/// The game's folder where one way of installing puts it.
QString folderOf(const QString& place, int game) {
    return "D:\\" + place + '\\' + nameOf(game);
}

void installFolders(TestPc& pc, int game) {
    for (const QString place : {"Folder", "Uninstall", "Games", "Menu", "Epic", "Chosen", "Oculus\\Software"}) {
        pc.file(folderOf(place, game) + "\\x.exe");
    }
    pc.file("C:\\Steam\\steamapps\\common\\" + nameOf(game) + "\\x.exe");
}

void installGame(TestPc& pc, int game) {
    const QString name = nameOf(game);
    const QString number = QString::number(game);
    installFolders(pc, game);
    addProgram(pc, {name, name, folderOf("Uninstall", game), {}});
    addGame(pc, {number, name, folderOf("Games", game) + "\\x.exe", folderOf("Games", game)});
    pc.file("C:\\Steam\\steamapps\\appmanifest_10" + number + ".acf");
    pc.shortcut("C:\\Menu\\" + name + ".lnk", folderOf("Menu", game) + "\\x.exe");
    pc.file("D:\\Oculus\\Manifests\\" + name + ".json.mini");
    addEpicApp(pc, number + ".item", {number, name, folderOf("Epic", game)});
    pc.userChoice(name, folderOf("Chosen", game));
}

} // namespace

bool operator==(const FinderAnswer& left, const FinderAnswer& right) {
    return left.found == right.found && left.location == right.location && left.userLocation == right.userLocation;
}

void PrintTo(const FinderAnswer& answer, std::ostream* stream) {
    *stream << (answer.found ? "found " : "not found ");
    PrintTo(answer.location, stream);
    *stream << " chosen " << answer.userLocation.toStdString();
}

void installForEveryFinder(TestPc& pc, int count) {
    pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    pc.shellFolder(Platform::csidlCommonStartMenu, "C:\\Menu of all");
    pc.file("C:\\Steam\\steam.exe");
    pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", View::view32}, "", "C:\\Steam\\steam.exe");
    pc.file("C:\\Steam\\steamapps\\appmanifest_250820.acf");
    pc.file("C:\\Steam\\steamapps\\common\\SteamVR\\bin\\win64\\vrserver.exe");
    pc.value({Platform::RootKey::LocalMachine, "Software\\Varjo\\Runtime", View::view64}, "InstallDir", "C:\\Varjo");
    makeOculusFolders(pc, "D:\\Oculus");
    addOculusLibrary(pc, "{1}", "D:\\Oculus");
    for (int game = 0; game < count; ++game) {
        installGame(pc, game);
    }
}

std::vector<std::unique_ptr<IGameFinder>> makeEveryFinder(IGameFinderFactory& factory, int game) {
    const QString name = nameOf(game);
    const QString part = name.mid(2);
    const QStringList executables{"gone.exe", "x.exe"};
    std::vector<std::unique_ptr<IGameFinder>> finders;
    finders.push_back(factory.createUninstallFinder(name, executables, equals));
    finders.push_back(factory.createUninstallFinder(part, executables, contains));
    finders.push_back(factory.createGameForWindowFinder(name, executables));
    finders.push_back(factory.createSteamFinder("10" + QString::number(game), name, executables));
    finders.push_back(factory.createStartMenuFinder(name, executables, equals));
    finders.push_back(factory.createStartMenuFinder(part, executables, contains));
    finders.push_back(factory.createFolderFinder(folderOf("Folder", game), executables));
    finders.push_back(factory.createOculusStoreFinder(name, executables, name));
    finders.push_back(factory.createEpicStoreFinder(name, executables, equals));
    finders.push_back(factory.createEpicStoreFinder(part, executables, contains));
    finders.push_back(factory.createUserProvidedLocationFinder(name, executables));
    finders.push_back(factory.createUniversalAppFinder(name));
    finders.push_back(factory.createMultiFinder(
        factory.createUninstallFinder("Gone", executables, equals), factory.createGameForWindowFinder("Gone", {}),
        factory.createSteamFinder("1", "Gone", {}), factory.createStartMenuFinder("Gone", {}, equals),
        factory.createFolderFinder("D:\\Gone", {}), factory.createOculusStoreFinder("Gone", {}, "Gone"),
        factory.createEpicStoreFinder("Gone", {}, equals), factory.createUniversalAppFinder("Gone"),
        factory.createUserProvidedLocationFinder("Gone", {}), nullptr,
        factory.createFolderFinder(folderOf("Folder", game), executables)));
    return finders;
}

FinderAnswer ask(IGameFinder& finder) {
    FinderAnswer answer;
    answer.location = usedLocation();
    answer.found = finder.find(answer.location);
    answer.userLocation = finder.userLocation();
    return answer;
}

std::vector<FinderAnswer> askEveryFinder(IGameFinderFactory& factory, int game) {
    std::vector<FinderAnswer> answers;
    for (const auto& finder : makeEveryFinder(factory, game)) {
        answers.push_back(ask(*finder));
    }
    return answers;
}

std::vector<QString> askFactory(IGameFinderFactory& factory) {
    return {factory.oculusLibraryFolders().join('|'),
            factory.oculusRuntimeFolder(),
            factory.steamExecutablePath(),
            factory.steamConfigFolder(),
            factory.varjoRuntimeFolder(),
            factory.openXrActiveRuntime(),
            factory.lumavexStandaloneLocation(),
            factory.steamVrFolder()};
}
