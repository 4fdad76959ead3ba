#pragma once

#include <QString>

class FindProgram;

/// A recorded PC with a game for every finder but the one of a folder that is known beforehand, and with secrets beside
/// all that finders read. Its user is Anneliese Ö, the machine KAEFER-PC; another user has the name "user".
class FullPc {
public:
    /// Makes it in the program's folder.
    explicit FullPc(const FindProgram& program);

    QString folder() const { return m_folder; }

    /// The file of a catalogue of its games, all of which are found.
    QString catalogue() const { return m_catalogue; }

    static constexpr int games = 11;

    /// The word that is in each secret.
    static const QString secret;

    /// What a recording of it tells of itself.
    static const QString summary;

private:
    QString m_folder;
    QString m_catalogue;
};
