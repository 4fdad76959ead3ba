#pragma once

#include "support/LockGuard.h"

#include <mutex>

/// A list that is built at the first request, under a lock, and read without one ever after: what all indexes of
/// installed software are. `Lock` is any lock that LockGuard takes.
///
/// The build is attempted once. One that finds nothing, or that runs out of memory half-way, is not repeated, so what
/// is installed later stays unseen for the life of this object.
template <class List, class Lock = std::mutex>
class BuiltOnce {
public:
    /// The list, after `build(list)` has filled it if this is the first request. Concurrent first requests wait for
    /// the one build. The reference stays valid, and what it refers to unchanged, as long as this object lives.
    template <class Build>
    const List& entries(Build&& build) {
        const LockGuard guard(m_lock);
        if (m_needsBuild) {
            m_needsBuild = false;
            build(m_entries);
        }
        return m_entries;
    }

private:
    Lock m_lock{};
    List m_entries;
    bool m_needsBuild = true;
};
