#pragma once

#include <QtGlobal>

#include <atomic>
#include <memory>

/// Keeps the first object that it is offered, for as long as it lives. Any thread may offer and get, without a lock.
template <class T>
class FirstOffered {
public:
    FirstOffered() = default;

    ~FirstOffered() { const std::unique_ptr<T> last(get()); }

    /// Null while none was offered.
    T* get() const noexcept { return m_object.load(std::memory_order_acquire); }

    /// Takes the object; destroys it when another one is kept. Returns the kept one, which is null when all that were
    /// offered were.
    T* offer(std::unique_ptr<T> object) noexcept {
        T* kept = nullptr;
        const bool isFirst = m_object.compare_exchange_strong(kept, object.get(), std::memory_order_acq_rel);
        return isFirst ? object.release() : kept;
    }

private:
    Q_DISABLE_COPY_MOVE(FirstOffered)

    std::atomic<T*> m_object{nullptr};
};
