#include "Bare.h"
#include "Benchmarks.h"
#include "Figures.h"
#include "Logs.h"

#include "core/IGameFinderFactory.h"

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
