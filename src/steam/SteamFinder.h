#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class SteamLibraryIndex;
class UninstallIndex;

namespace Finders {

/// Finds a game of the Steam client by its app id: through the client's entry for it in the Uninstall registry, then in
/// the Steam libraries. It is started through the client ("steam://launch/…").
class SteamFinder final : public AbstractFinder {
public:
    /// The indexes are borrowed; must outlive the finder. With an empty `installFolderName` the libraries are not
    /// searched, and their index is not built.
    SteamFinder(Logger* logger, UninstallIndex* uninstallIndex, SteamLibraryIndex* steamIndex, const QString& appId,
                const QString& installFolderName, const QStringList& executables);

    /// False with the location untouched when nothing knows the app; otherwise a failed search leaves it reset, with
    /// the last folder looked in as its `installFolder`.
    bool find(GameLocation& location) override;

private:
    bool findByUninstallEntry(GameLocation& location) const;
    bool findInLibraries(GameLocation& location) const;
    bool findIn(const QString& folder, GameLocation& location) const;

    UninstallIndex* m_uninstallIndex;
    SteamLibraryIndex* m_steamIndex;
    QString m_appId;
    QString m_installFolderName;
    QStringList m_executables;
};

} // namespace Finders
