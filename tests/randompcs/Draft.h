#pragma once

#include "randompcs/Dice.h"
#include "recordings/Pc.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QString>
#include <QStringList>

/// A place in the registry.
struct DraftKey {
    Recordings::RegKey::Root root;
    Recordings::RegistryView view;
    QString path;
};

/// A game as a catalogue asks for it, and where its files lie.
struct DraftGame {
    QString name;            ///< "Käfer 競走 7", which no other game has
    QString folder;          ///< "D:\Spiele\Käfer 競走 7"
    QStringList executables; ///< below it, as the catalogue has them
};

/// A PC in the making, and the games that are to be looked for on it. What is drawn is mostly as programs leave it on a
/// PC; the rest is odd, or not there.
class Draft {
public:
    Draft(quint32 seed, const QMap<QChar, QString>& volumes);

    // Names
    QString word();
    QString newName();                        ///< some words and a number
    QString inOtherCase(const QString& text); ///< now and then
    QString sloppily(const QString& folder);  ///< the same folder as a careless program writes it, now and then

    /// A new game, whose files are there, in part or not at all.
    DraftGame newGame();
    DraftGame newGameIn(const QString& parent);

    /// A part of the name with which a search that is content with parts finds the game.
    QString partOf(const QString& name);

    // Files
    void file(const QString& path, const QByteArray& contents = {});
    void folder(const QString& path);
    void shortcut(const QString& path, const QString& target);

    // Registry
    void key(const DraftKey& key);
    void text(const DraftKey& key, const QString& name, const QString& text);    ///< a plain string
    void oddText(const DraftKey& key, const QString& name, const QString& text); ///< now and then anything but that

    /// Adds a game to the catalogue, which is found by the finder.
    void lookFor(const QJsonObject& finder);

    /// What the catalogue asks for, now and then another thing.
    QJsonArray executablesOf(const DraftGame& game);

    Dice dice;
    Recordings::Pc pc;
    QJsonArray games;

private:
    QStringList newExecutables();

    int m_names = 0;
};
