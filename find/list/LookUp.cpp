#include "find/list/LookUp.h"

#include "find/explain/Words.h"
#include "find/terminal/DidYouMean.h"

#include <algorithm>
#include <iterator>

namespace Find {

std::vector<ListedGame> installedLike(const std::vector<ListedGame>& installed, const QString& name) {
    std::vector<ListedGame> games;
    std::copy_if(installed.begin(), installed.end(), std::back_inserter(games), [&name](const ListedGame& game) {
        return game.name.compare(name.trimmed(), Qt::CaseInsensitive) == 0;
    });
    if (!games.empty()) {
        return games;
    }
    QStringList names;
    for (const ListedGame& game : installed) {
        names.append(game.name);
    }
    const QStringList near = wordsNear(name, names);
    const QStringList words = searchWords({name, {}});
    std::copy_if(installed.begin(), installed.end(), std::back_inserter(games),
                 [&](const ListedGame& game) { return near.contains(game.name) || mentions(game.name, words); });
    return games;
}

} // namespace Find
