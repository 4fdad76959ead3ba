#pragma once

#include <QtGlobal>

#include <atomic>
#include <memory>

/// Keeps the first object that it is offered, for as long as it lives. Any thread may offer and get, without a lock.
///
/// What a process works out once is kept in one outside of any function. A static variable of a function would need
/// nothing of the kind, but MinGW's runtime, which guards its making, takes two handles, a place for thread-local
/// values and some memory for that, and gives them back to nobody when this library is unloaded.
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

    /// The object that is kept. Where none is, offers the one that `make` returns as a unique pointer, which is not
    /// null.
    template <class Make>
    T& getOrOffer(const Make& make) {
        T* const kept = get();
        return kept ? *kept : *offer(make());
    }

private:
    Q_DISABLE_COPY_MOVE(FirstOffered)

    std::atomic<T*> m_object{nullptr};
};
