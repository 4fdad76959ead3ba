#include <luruludri/IGameFinderFactory.h>

#include <QCoreApplication>
#include <QLibrary>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QLibrary plugin(QCoreApplication::applicationDirPath() + "/Luruludri");
    const auto create = reinterpret_cast<CreateFactoryFunction>(plugin.resolve("Create"));
    if (!create) {
        std::fprintf(stderr, "%s\n", qPrintable(plugin.errorString()));
        return 2;
    }
    const std::unique_ptr<IGameFinderFactory> factory(create());
    const auto finder = factory->createUninstallFinder("Marmor & Messing", {"marmor.exe"}, 0);
    GameLocation location;
    if (!finder->find(location)) {
        return 1;
    }
    std::printf("start %s in %s\n", qPrintable(location.launchCommand), qPrintable(location.installFolder));
    // The finder goes first, then its factory; the plug-in stays loaded.
}
