#pragma once

#include "installers/DummyGame.h"

#include <QSettings>
#include <QString>
#include <QtGlobal>

/// A dummy game on this PC: put there by its installer, without a question, and taken off it again by its uninstaller
/// when the Installation goes, unless that happened before. What goes wrong fails the test.
class Installation {
public:
    /// Installs the game in `folder`, or in its usual one when that is empty.
    explicit Installation(const DummyGame& game, const QString& folder = {});
    ~Installation();

    /// Where the game is, or was.
    QString folder() const { return m_folder; }

    /// Whether its shortcut is in one of the game's menus.
    bool hasShortcut() const;

    /// Runs the uninstaller as it is registered and waits until its work is done. Nothing happens when the game is not
    /// installed.
    void uninstall();

private:
    Q_DISABLE_COPY_MOVE(Installation)

    bool isRegistered() const;

    /// An uninstaller goes on from a copy of itself, to be able to delete itself. False when it takes too long.
    bool waitUntilUnregistered() const;

    DummyGame m_game;
    QString m_folder;
    QSettings m_registry; ///< the key above the game's own, as QSettings makes the key that it is given
    bool m_isInstalled = false;
};
