#pragma once

#include <QString>
#include <QStringList>

namespace Find {

struct Game;

/// The words that a search is about, to tell which of many lines may interest: those of the game's name and of what its
/// finders search for, of three letters and more.
QStringList searchWords(const Game& game);

/// "1 entry", "2 entries".
QString counted(int count, const char* one, const char* many);

/// Whether the text has any of the words in it, letter case ignored.
bool mentions(const QString& text, const QStringList& words);

} // namespace Find
