#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

class EpicManifestIndex;
struct EpicAppEntry;

namespace Finders {

/// Finds a game of the Epic launcher by its display name and one of its executables. It is started through the
/// launcher ("com.epicgames.launcher://apps/…").
class EpicStoreFinder final : public AbstractFinder {
public:
    /// `index` is borrowed; must outlive the finder. An empty `name` is not searched, and the index is not built.
    EpicStoreFinder(Logger* logger, EpicManifestIndex* index, const QString& name, const QStringList& executables,
                    int matchMode);

    /// False with the location untouched when no entry of this name tells a place; otherwise a failed search leaves it
    /// reset, with the last place looked in as its `installFolder`.
    bool find(GameLocation& location) override;

private:
    bool findBy(const EpicAppEntry& entry, GameLocation& location) const;

    EpicManifestIndex* m_index;
    QString m_name;
    QStringList m_executables;
    int m_matchMode;
};

} // namespace Finders
