#include "platform/FolderLock.h"

#include "platform/windows/WideText.h"

#include <windows.h>

namespace Platform {

namespace {

struct MutexCloser {
    void operator()(void* mutex) const noexcept { ::CloseHandle(mutex); }
};

using MutexHandle = std::unique_ptr<void, MutexCloser>;

/// A mutex that this thread has.
class HeldMutex final : public FolderLock {
public:
    explicit HeldMutex(MutexHandle mutex)
        : m_mutex(std::move(mutex)) {}

    ~HeldMutex() override { ::ReleaseMutex(m_mutex.get()); }

private:
    Q_DISABLE_COPY_MOVE(HeldMutex)

    MutexHandle m_mutex;
};

} // namespace

std::unique_ptr<FolderLock> lockFolder(const QString& path) {
    // A mutex has a backslash in its name behind the namespace only.
    const QString name = QLatin1String("Local\\") + QString(path).replace(QLatin1Char('\\'), QLatin1Char('/'));
    MutexHandle mutex(::CreateMutexW(nullptr, FALSE, wide(name)));
    if (!mutex) {
        return nullptr;
    }
    constexpr DWORD second = 1'000;
    const DWORD result = ::WaitForSingleObject(mutex.get(), second);
    if (result != WAIT_OBJECT_0 && result != WAIT_ABANDONED) {
        return nullptr;
    }
    return std::make_unique<HeldMutex>(std::move(mutex));
}

} // namespace Platform
