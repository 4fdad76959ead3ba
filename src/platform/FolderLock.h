#pragma once

#include <QString>
#include <QtGlobal>

#include <memory>

/// A lock that other processes know.
namespace Platform {

/// Held until it goes, against the other threads and processes of this user that lock the same folder.
class FolderLock {
public:
    virtual ~FolderLock() = default;

protected:
    FolderLock() = default;
    Q_DISABLE_COPY_MOVE(FolderLock)
};

/// CreateMutexW, with a name made of the folder's, and WaitForSingleObject. Waits for at most a second, as another
/// process may be stopped while it holds the lock. Null when the lock can't be had.
std::unique_ptr<FolderLock> lockFolder(const QString& path);

} // namespace Platform
