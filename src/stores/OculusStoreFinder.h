#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class OculusLibraryIndex;
struct OculusAppEntry;

namespace Finders {

/// Finds a game of the Oculus store by its app id and one of its executables, in the game's folder below a library's
/// "Software" folder.
class OculusStoreFinder final : public AbstractFinder {
public:
    /// `index` is borrowed; must outlive the finder. With an empty `softwareFolder` nothing is searched, and the index
    /// is not built.
    OculusStoreFinder(Logger* logger, OculusLibraryIndex* index, const QString& appId, const QStringList& executables,
                      const QString& softwareFolder);

    /// The install folder has forward slashes; before an executable's name stands a native separator.
    ///
    /// False with the location untouched when no library has the app; otherwise a failed search leaves it reset, with
    /// the game's folder, or the last existing folder on the way there, as its `installFolder`.
    bool find(GameLocation& location) override;

private:
    bool findBy(const OculusAppEntry& entry, GameLocation& location) const;

    OculusLibraryIndex* m_index;
    QString m_appId;
    QStringList m_executables; ///< without empty names
    QString m_softwareFolder;
};

} // namespace Finders
