#include "platform/FolderLock.h"

#include <QFile>

#include <cerrno>
#include <chrono>
#include <thread>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace Platform {

namespace {

/// A folder that is open; closing it gives up its lock.
class OpenFolder final : public FolderLock {
public:
    explicit OpenFolder(const QString& path)
        : m_folder(::open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)) {}

    ~OpenFolder() override {
        if (m_folder >= 0) {
            ::close(m_folder);
        }
    }

    /// The error, which is EWOULDBLOCK while another one has the lock; 0 when it is ours.
    int lock() const noexcept { return ::flock(m_folder, LOCK_EX | LOCK_NB) == 0 ? 0 : errno; }

private:
    Q_DISABLE_COPY_MOVE(OpenFolder)

    int m_folder;
};

} // namespace

std::unique_ptr<FolderLock> lockFolder(const QString& path) {
    auto folder = std::make_unique<OpenFolder>(path);
    int error = folder->lock();
    for (int attempt = 0; error == EWOULDBLOCK && attempt < 1'000; ++attempt) {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        error = folder->lock();
    }
    if (error != 0) {
        return nullptr;
    }
    return folder;
}

} // namespace Platform
