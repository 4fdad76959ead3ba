#include "find/terminal/DidYouMean.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>
#include <vector>

namespace Find {

namespace {

constexpr int mostWords = 3;
constexpr int shortestPart = 3; // of a name; less is in too many of them

/// The letters to insert, to remove, to replace or to swap with their neighbour to make one word of the other; `most`
/// and one when it takes more.
int editDistance(const QString& a, const QString& b, int most) {
    if (std::abs(a.size() - b.size()) > most) {
        return most + 1;
    }
    std::vector<int> before(static_cast<std::size_t>(b.size()) + 1);
    std::vector<int> last = before;
    std::vector<int> line(before.size());
    std::iota(last.begin(), last.end(), 0);
    for (int i = 1; i <= a.size(); ++i) {
        line[0] = i;
        for (int j = 1; j <= b.size(); ++j) {
            const auto at = static_cast<std::size_t>(j);
            const bool isSame = a.at(i - 1) == b.at(j - 1);
            line[at] = std::min({last[at] + 1, line[at - 1] + 1, last[at - 1] + (isSame ? 0 : 1)});
            if (i > 1 && j > 1 && a.at(i - 1) == b.at(j - 2) && a.at(i - 2) == b.at(j - 1)) {
                line[at] = std::min(line[at], before[at - 2] + 1);
            }
        }
        before.swap(last);
        last.swap(line);
    }
    return last.back();
}

/// How far the words are apart; `most` and one for a word that is part of the other, more when they have nothing to do
/// with each other.
int distance(const QString& word, const QString& known, int most) {
    const int edits = editDistance(word, known, most);
    if (edits <= most) {
        return edits;
    }
    const bool isPart =
        (word.size() >= shortestPart && known.contains(word)) || (known.size() >= shortestPart && word.contains(known));
    return isPart ? most + 1 : most + 2;
}

} // namespace

QStringList wordsNear(const QString& word, const QStringList& known) {
    const QString wanted = word.toCaseFolded();
    const int most = wanted.size() < 2 ? 0 : std::max(wanted.size() / 3, 1);
    std::vector<std::pair<int, QString>> near;
    for (const QString& candidate : known) {
        const int apart = distance(wanted, candidate.toCaseFolded(), most);
        if (apart <= most + 1) {
            near.emplace_back(apart, candidate);
        }
    }
    std::stable_sort(near.begin(), near.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList words;
    for (const auto& candidate : near) {
        if (words.size() < mostWords && !words.contains(candidate.second)) {
            words.append(candidate.second);
        }
    }
    return words;
}

QString didYouMean(const QString& word, const QStringList& known) {
    const QStringList near = known.contains(word) ? QStringList() : wordsNear(word, known);
    return near.isEmpty() ? QString()
                          : QStringLiteral("; did you mean \"%1\"?").arg(near.join(QLatin1String("\" or \"")));
}

} // namespace Find
