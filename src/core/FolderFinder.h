#pragma once

#include "core/AbstractFinder.h"

#include <QStringList>

namespace Finders {

/// Finds a game in a folder that is known beforehand. Looks at the file system at every search.
class FolderFinder final : public AbstractFinder {
public:
    FolderFinder(Logger* logger, const QString& folder, const QStringList& executables);

    /// True when any of the executables exists; `installFolder` is then the given folder, even when an executable
    /// lies below it. False with the location untouched when the folder does not exist.
    bool find(GameLocation& location) override;

private:
    QString m_folder;
    QStringList m_executables;
};

} // namespace Finders
