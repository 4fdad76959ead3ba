#pragma once

#include "common/TestPc.h"
#include "platform/Registry.h"

/// An entry of the Windows Games Explorer.
struct TestGame {
    QString key;
    QString title;
    QString executable;
    QString folder;
    quint32 view = 0; ///< a view flag as RegistryKey takes it
};

inline const QString gamesKeyPath = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\GameUX\\Games";

/// Adds the entry, without the values that are null.
inline void addGame(TestPc& pc, const TestGame& game) {
    const TestKey key{Platform::RootKey::LocalMachine, gamesKeyPath + '\\' + game.key, game.view};
    pc.key(key);
    for (const auto& [name, text] :
         {std::pair{"Title", game.title}, {"AppExePath", game.executable}, {"ConfigApplicationPath", game.folder}}) {
        if (!text.isNull()) {
            pc.value(key, name, text);
        }
    }
}
