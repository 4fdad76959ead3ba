#include "find/cli/Commands.h"

#include "core/IGameFinderFactory.h"
#include "find/answers/UserChoice.h"
#include "find/catalogue/CatalogueWriter.h"
#include "find/cli/CommandLine.h"
#include "find/terminal/Console.h"
#include "find/terminal/DidYouMean.h"
#include "find/terminal/OneLine.h"

#include <QDir>

namespace Find {

namespace {

void complainOfUnknownKey(const Options& options, const Catalogue& games) {
    const QString key = options.key.trimmed();
    Console::complain({options.catalogue, 0, 0,
                       QStringLiteral("no game has the key \"%1\"; remembered all the same").arg(key) +
                           didYouMean(key, keysOf(games))});
}

/// A key of the usual catalogue that may have been meant.
QString meantByKey(const QString& key, const Options& options) {
    CatalogueFaults faults; // which are nobody's business here
    const Catalogue games = readCatalogue(options.catalogue, faults).value_or(Catalogue());
    return hasKey(games, key) ? QString() : didYouMean(key, keysOf(games));
}

/// The finders that are asked no more, as the catalogue has them.
QString describe(const std::vector<ShutOut>& shutOut) {
    QString text;
    for (const ShutOut& game : shutOut) {
        text +=
            oneLine(game.game) + QLatin1String(": as long as this folder is chosen, these finders are not asked:\n");
        for (const FinderEntry& finder : game.finders) {
            text += QLatin1String("    ") + catalogueText(finder) + QLatin1Char('\n');
        }
    }
    return text;
}

} // namespace

ExitStatus locateGame(IGameFinderFactory& factory, const Options& options, const Catalogue& games) {
    const UserChoice choice = rememberChoice(factory, games, options.key, options.folder);
    if (choice.folder.isEmpty()) {
        return fail(QStringLiteral("the folder could not be remembered"));
    }
    if (!choice.isAskedFor) {
        complainOfUnknownKey(options, games);
    }
    if (!choice.missing.isEmpty()) {
        Console::complain(QStringLiteral("the folder holds none of the game's executables: ") +
                          choice.missing.join(QLatin1String(", ")));
    }
    return print(oneLine(options.key.trimmed() + QLatin1String(": ") + QDir::toNativeSeparators(choice.folder)) +
                     QLatin1Char('\n') + describe(shutOutBy(games, options.key)),
                 choice.missing.isEmpty() ? allFound : someNotFound);
}

ExitStatus forgetGame(IGameFinderFactory& factory, const Options& options) {
    const QString key = options.key.trimmed();
    const std::optional<QString> folder = forgetChoice(factory, options.key);
    if (!folder) {
        return fail(QStringLiteral("the folder could not be forgotten"));
    }
    const QString outcome = folder->isEmpty() ? QLatin1String("no folder was remembered") + meantByKey(key, options)
                                              : QStringLiteral("forgotten");
    return print(oneLine(key + QLatin1String(": ") + outcome) + QLatin1Char('\n'), allFound);
}

} // namespace Find
