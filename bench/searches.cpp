#include "Bare.h"
#include "Benchmarks.h"
#include "Figures.h"
#include "InstalledGames.h"
#include "Logs.h"

#include "catalogue/StartMenuIndex.h"
#include "catalogue/UninstallIndex.h"
#include "core/GameLocation.h"
#include "core/plugin/FindersFactory.h"
#include "support/Trace.h"

#include <QBuffer>

#include <memory>
#include <vector>

namespace {

using InstalledGames::executable;
using InstalledGames::name;

constexpr int manySearches = 1000;

/// `nameOf` tells the names by their numbers.
template <class Index>
void searchesByName(const Figures& figures, const char* title, QString (*nameOf)(int)) {
    Index index;
    index.entries();
    std::vector<QString> names;
    for (int i = 0; i < manySearches; ++i) {
        names.push_back(nameOf(static_cast<int>(qint64{i} * figures.entries() / manySearches)).toUpper());
        if (index.findByName(names.back(), MatchMode::equals).size() != 1) {
            qFatal("%s: not found: %s", title, qUtf8Printable(names.back()));
        }
    }
    const auto equal = [&index, &names] {
        for (const QString& name : names) {
            index.findByName(name, MatchMode::equals);
        }
    };
    figures.time(QLatin1String(title) + QLatin1String(", equal name"), equal, manySearches);
    const QString part = nameOf(figures.entries() - 1).toUpper().mid(1);
    figures.time(
        QLatin1String(title) + QLatin1String(", containing, an entry"),
        [&index, &part] { index.findByName(part, MatchMode::contains); }, figures.entries());
}

std::vector<std::unique_ptr<IGameFinder>> findersOf(IGameFinderFactory& factory) {
    std::vector<std::unique_ptr<IGameFinder>> finders;
    for (int i = 0; i < InstalledGames::asked; ++i) {
        const QStringList executables{executable()};
        finders.push_back(factory.createMultiFinder(
            factory.createSteamFinder(QString::number(i), name(i), executables),
            factory.createUninstallFinder(name(i), executables, MatchMode::equals),
            factory.createStartMenuFinder(name(i), executables, MatchMode::equals),
            factory.createEpicStoreFinder(name(i), executables, MatchMode::equals),
            factory.createOculusStoreFinder(QStringLiteral("none-%1").arg(i), executables, name(i)), nullptr, nullptr,
            nullptr, nullptr, nullptr, nullptr));
    }
    return finders;
}

int findAll(const std::vector<std::unique_ptr<IGameFinder>>& finders) {
    int found = 0;
    GameLocation location;
    for (const std::unique_ptr<IGameFinder>& finder : finders) {
        found += finder->find(location) ? 1 : 0;
    }
    return found;
}

/// The files and folders that are tested for when these finders search.
std::vector<Bare::Text> testedFiles(const std::vector<std::unique_ptr<IGameFinder>>& finders) {
    QBuffer trace;
    trace.open(QIODevice::ReadWrite);
    Trace::begin({&trace, {}, false});
    findAll(finders);
    Trace::begin({});
    std::vector<Bare::Text> files;
    trace.seek(0);
    while (!trace.atEnd()) {
        const std::optional<Trace::Event> event = Trace::fromLine(trace.readLine());
        if (const Trace::Exists* const test = event ? std::get_if<Trace::Exists>(&*event) : nullptr) {
            files.push_back(test->path.toStdU16String());
        }
    }
    return files;
}

/// A pass over a host's whole catalogue when all lists are made.
void pass(const Figures& figures, int keys, int files) {
    const QString logger = QStringLiteral("Quorvan.Finders");
    Finders::FindersFactory factory;
    const std::vector<std::unique_ptr<IGameFinder>> finders = findersOf(factory);
    if (findAll(finders) != InstalledGames::found(keys, files)) {
        qFatal("a pass finds other games than those that are there");
    }
    const auto written = static_cast<std::ptrdiff_t>(Logs::pieces(logger).size());
    const std::vector<Bare::Text> tests = testedFiles(finders);
    const std::vector<std::string> pieces = Logs::pieces(logger);
    const std::vector<std::string> ofOnePass(pieces.begin() + written, pieces.end());
    const auto floor = [&] {
        for (const Bare::Text& file : tests) {
            Bare::exists(file);
        }
        Bare::writeLog("Bare", ofOnePass);
    };
    figures.ratio(
        QStringLiteral("pass"), [&finders] { findAll(finders); }, floor);
}

void userChoice(const Figures& figures) {
    Finders::FindersFactory factory;
    const auto finder = factory.createUserProvidedLocationFinder(name(0), {executable()});
    GameLocation location;
    if (!finder->find(location)) {
        qFatal("the user's choice is not found");
    }
    figures.time(QStringLiteral("user's choice"), [&finder] { finder->userLocation(); });
}

} // namespace

void Benchmarks::searches(const Figures& figures, int keys, int files) {
    searchesByName<UninstallIndex>(figures.of(keys), "uninstall", InstalledGames::name);
    searchesByName<StartMenuIndex>(figures.of(files), "start menu", InstalledGames::shortcutName);
    pass(figures, keys, files);
    userChoice(figures);
}
