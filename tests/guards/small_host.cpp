// The least that a host does: load the plug-in, ask it for its own program's folder, and let go of everything.

#include "core/IGameFinderFactory.h"

#include <QCoreApplication>
#include <QLibrary>

#include <cstdio>

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QLibrary plugin(QCoreApplication::arguments().value(1));
    const auto create = reinterpret_cast<CreateFactoryFunction>(plugin.resolve("Create"));
    if (!create) {
        std::fprintf(stderr, "%s\n", qPrintable(plugin.errorString()));
        return 2;
    }
    GameLocation location;
    bool found = false;
    {
        const std::unique_ptr<IGameFinderFactory> factory(create());
        const QString program = QCoreApplication::applicationFilePath().section(QLatin1Char('/'), -1);
        found = factory->createFolderFinder(QCoreApplication::applicationDirPath(), {program})->find(location);
    }
    plugin.unload();
    std::printf("%s\n", qPrintable(location.launchCommand)); // still good when the plug-in is gone
    return found && location.executablePaths.size() == 1 ? 0 : 1;
}
