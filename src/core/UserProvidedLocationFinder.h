#pragma once

#include "core/IGameFinder.h"

#include <QStringList>

class Logger;

namespace Finders {

/// Finds a game in the folder that the user chose for it. The choice is kept in the user's settings, which outlive the
/// process and are read anew at each call.
class UserProvidedLocationFinder final : public IGameFinder {
public:
    /// `key` names the game in the settings; when it is blank, nothing is remembered and nothing found. `logger` is the
    /// factory's: borrowed; must outlive the finder.
    UserProvidedLocationFinder(Logger* logger, const QString& key, const QStringList& executables);

    /// The install folder is as remembered. False leaves the location reset, with the remembered folder, if there is
    /// one, as its `installFolder`.
    bool find(GameLocation& location) override;

    QString userLocation() override;

    /// Takes the install folder, or the folder below it that holds one of the executables directly; remembers the
    /// install folder. Any other path is remembered as it is.
    void setUserLocation(const QString& path) override;

private:
    QString installFolderFor(const QString& path) const;

    QString m_key;
    QStringList m_executables; ///< without surrounding blanks and without empty names
    Logger* m_logger;
};

} // namespace Finders
