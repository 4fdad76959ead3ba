#include "Bare.h"
#include "Benchmarks.h"
#include "Figures.h"
#include "InstalledGames.h"
#include "Logs.h"

#include "core/IGameFinderFactory.h"
#include "support/NameTable.h"

#include "core/GameLocation.h"

#include <QFileInfo>
#include <QLibrary>

#include <memory>

void Benchmarks::plugin(const Figures& figures, const QString& path) {
    const QString logger = QStringLiteral("Quorvan.Finders");
    figures.number(QStringLiteral("plug-in's size"), static_cast<double>(QFileInfo(path).size()),
                   QStringLiteral("bytes"));
    QLibrary library(path);
    figures.time(QStringLiteral("loading"), [&library] {
        if (!library.load() || !library.unload()) {
            qFatal("%s", qUtf8Printable(library.errorString()));
        }
    });
    const auto create = reinterpret_cast<CreateFactoryFunction>(library.resolve("Create"));
    if (!create) {
        qFatal("%s", qUtf8Printable(library.errorString()));
    }
    Logs::remove(logger);
    std::unique_ptr<IGameFinderFactory> factory(create());
    factory.reset();
    std::vector<std::string> opening = Logs::pieces(logger);
    opening.pop_back();
    figures.ratio(
        QStringLiteral("Create"), [&] { factory.reset(create()); },
        [&opening] { Bare::writeLog("Quorvan.Finders", opening); },
        [&] {
            factory.reset();
            Logs::remove(logger);
        });
}

void Benchmarks::calls(const QString& plugin) {
    const auto create = reinterpret_cast<CreateFactoryFunction>(QLibrary::resolve(plugin, "Create"));
    std::unique_ptr<IGameFinderFactory> factory(create());
    const auto told = [](const Bare::Text& name, const std::function<void()>& work) {
        Bare::exists(u"calls: " + name);
        work();
        Bare::exists(u"calls: end");
    };
    std::unique_ptr<IGameFinderFactory> second;
    told(u"Create", [&second, create] { second.reset(create()); });
    const QStringList executables{InstalledGames::executable()};
    const auto missing = factory->createUninstallFinder(QStringLiteral("none"), executables, MatchMode::equals);
    const auto installed = factory->createUninstallFinder(InstalledGames::name(1), executables, MatchMode::equals);
    const auto chosen = factory->createUserProvidedLocationFinder(InstalledGames::name(0), executables);
    GameLocation location;
    missing->find(location); // makes the list
    told(u"warm search, not found", [&] { missing->find(location); });
    told(u"warm search, found", [&] { installed->find(location); });
    told(u"user's choice", [&] { chosen->find(location); });
}
