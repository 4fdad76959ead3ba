#pragma once

#include "core/Locations.h"

#include <QSettings>
#include <QString>
#include <QStringList>

#include <vector>

/// What the Uninstall registry tells of a game's place.
enum class Registered {
    Folder,              ///< the install location
    FolderWithSeparator, ///< the install location, a backslash at its end, as Windows Installer writes it
    Uninstaller,         ///< only the uninstaller in the game's folder
};

/// A dummy game and what its installer does; one for each installer script in this folder.
struct DummyGame {
    QString id;    ///< letters only
    QString name;  ///< in the Uninstall registry and of the shortcut
    QString setup; ///< the installer's file name
    QString executable;
    QString usualFolder; ///< where it is installed when nothing else is asked for
    QString root;        ///< of the Uninstall registry that it goes to
    QSettings::Format view;
    QString key; ///< its own in the Uninstall registry
    Registered registered;
    QStringList menus; ///< the folders of which one gets the shortcut; empty when there is none

    /// The program that every game has beside its executable, relative to its folder.
    static QString editor() { return "tools\\editor.exe"; }

    /// What is found in the registry when the game is installed in `folder`.
    Answer registeredIn(const QString& folder) const;

    /// What is left when the game was looked for in `folder` in vain.
    Answer missedIn(const QString& folder) const;

    /// What is found by the shortcut when the game is installed in `folder`.
    Answer linkedIn(const QString& folder) const;
};

std::vector<DummyGame> dummyGames();
