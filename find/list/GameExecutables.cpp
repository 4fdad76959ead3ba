#include "find/list/GameExecutables.h"

#include "find/pc/AnsweringPc.h"

#include <QRegularExpression>

#include <algorithm>
#include <deque>
#include <tuple>
#include <vector>

namespace Find {

namespace {

constexpr int mostExecutables = 3;
constexpr int mostFolders = 500; // of one game
const QLatin1Char backslash('\\');

QString lettersOf(const QString& text) {
    QString letters;
    for (const QChar character : text) {
        if (character.isLetterOrNumber()) {
            letters += character.toCaseFolded();
        }
    }
    return letters;
}

bool isHelper(const QString& fileName) {
    static const QRegularExpression words(
        QStringLiteral("unins|setup|install|redist|crash|report|update|patch|prereq|dotnet|directx|dxweb"),
        QRegularExpression::CaseInsensitiveOption);
    return words.match(fileName).hasMatch();
}

struct Rank {
    bool isHelper;
    bool isOther; ///< neither of the names has the other in it
    int depth;

    bool operator<(const Rank& other) const {
        return std::tie(isHelper, isOther, depth) < std::tie(other.isHelper, other.isOther, other.depth);
    }
};

Rank rankOf(const QString& executable, const QString& name) {
    const QString fileName = executable.mid(executable.lastIndexOf(backslash) + 1);
    const QString file = lettersOf(fileName.left(fileName.lastIndexOf(QLatin1Char('.'))));
    const QString wanted = lettersOf(name);
    const bool isAlike = !file.isEmpty() && !wanted.isEmpty() && (wanted.contains(file) || file.contains(wanted));
    return {isHelper(fileName), !isAlike, executable.count(backslash)};
}

} // namespace

QStringList likeliestExecutables(const QStringList& executables, const QString& name) {
    std::vector<std::pair<Rank, QString>> ranked;
    for (const QString& executable : executables) {
        ranked.emplace_back(rankOf(executable, name), executable);
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
    QStringList likeliest;
    for (const auto& [rank, executable] : ranked) {
        const bool isWanted = likeliest.isEmpty() || !rank.isHelper;
        if (isWanted && likeliest.size() < mostExecutables) {
            likeliest.append(executable);
        }
    }
    return likeliest;
}

QStringList gameExecutables(const QString& folder, const QString& name) {
    QStringList executables;
    std::deque<QString> pending = {QString()}; // folders below it, the nearest first
    for (int visited = 0; !pending.empty() && visited < mostFolders; ++visited) {
        const QString below = pending.front();
        pending.pop_front();
        for (const FolderEntry& entry : listFolder(folder + backslash + below)) {
            if (entry.isFolder && !entry.isLink) {
                pending.push_back(below + entry.name + backslash);
            } else if (!entry.isFolder && entry.name.endsWith(QLatin1String(".exe"), Qt::CaseInsensitive)) {
                executables.append(below + entry.name);
            }
        }
    }
    return likeliestExecutables(executables, name);
}

} // namespace Find
