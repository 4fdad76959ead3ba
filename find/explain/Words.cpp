#include "find/explain/Words.h"

#include "find/catalogue/Catalogue.h"

#include <QRegularExpression>

#include <algorithm>

namespace Find {

namespace {

constexpr int shortestWord = 3;

void addWords(const QString& text, QStringList& words) {
    static const QRegularExpression between(QStringLiteral("[^\\p{L}\\p{N}]+"));
    const QStringList parts = text.split(between, Qt::SkipEmptyParts);
    for (const QString& part : parts) {
        // Where a letter is a word, as in Japanese, a word has no three.
        const bool isLongEnough = part.size() >= shortestWord || part.at(0).unicode() >= 0x2E80;
        if (isLongEnough && !words.contains(part, Qt::CaseInsensitive)) {
            words.append(part);
        }
    }
}

void addWords(const FinderEntry& finder, QStringList& words) {
    // The last part of a folder; those before it are of other games, too.
    QString subject = finder.subject;
    subject.replace(QLatin1Char('/'), QLatin1Char('\\'));
    addWords(subject.mid(subject.lastIndexOf(QLatin1Char('\\')) + 1), words);
    addWords(finder.folderName, words);
}

} // namespace

QStringList searchWords(const Game& game) {
    QStringList words;
    addWords(game.name, words);
    forEachFinder(game.finders, [&words](const FinderEntry& finder) { addWords(finder, words); });
    return words;
}

QString counted(int count, const char* one, const char* many) {
    return QStringLiteral("%1 %2").arg(QString::number(count), QLatin1String(count == 1 ? one : many));
}

bool mentions(const QString& text, const QStringList& words) {
    return std::any_of(words.begin(), words.end(),
                       [&text](const QString& word) { return text.contains(word, Qt::CaseInsensitive); });
}

} // namespace Find
