#pragma once

#include <QtGlobal>

#include <atomic>
#include <mutex>
#include <variant>

class CriticalSection;

/// Holds one lock for its own lifetime: a critical section, a spin flag or a standard mutex. The lock is borrowed and
/// must outlive the guard.
class LockGuard {
public:
    /// One byte that is 1 while the lock is held. Waiting for it keeps the processor busy.
    using SpinFlag = std::atomic<quint8>;

    explicit LockGuard(CriticalSection& section);
    explicit LockGuard(SpinFlag& flag);
    explicit LockGuard(std::mutex& mutex);
    ~LockGuard();

private:
    Q_DISABLE_COPY_MOVE(LockGuard)

    std::variant<CriticalSection*, SpinFlag*, std::mutex*> m_lock;
};
