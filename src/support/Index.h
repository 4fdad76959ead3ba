#pragma once

#include "support/LockGuard.h"
#include "support/NameTable.h"
#include "support/Trace.h"

#include <QStringList>
#include <QtGlobal>

#include <cstddef>
#include <mutex>

/// What is installed by one way of installing: a list, and tables to look its entries up in. A class of its own for
/// each way says how it is built and by what it is looked up. `Lock` is any lock that LockGuard takes.
///
/// Built at the first question, whichever that is, under the lock, and read without it ever after; any thread may ask.
/// The build is attempted once: one that finds nothing, or that runs out of memory half-way, is not repeated, so what
/// is installed later stays unseen for the life of the index.
template <class List, class Lock = std::mutex>
class Index {
public:
    /// In the order in which they were found. Unchanged as long as the index lives.
    const List& entries() {
        const LockGuard guard(m_lock);
        if (m_needsBuild) {
            m_needsBuild = false;
            Trace::IndexSection section(m_name);
            build(m_entries);
            section.setEntries(static_cast<std::size_t>(m_entries.size()));
        }
        return m_entries;
    }

protected:
    using Entry = typename List::value_type;

    /// `name` is what the trace calls the index: one of Trace::IndexName.
    explicit Index(const char* name)
        : m_name(name) {}

    ~Index() = default;

    /// A table of this index, which is built first.
    template <class Table>
    const Table& built(const Table& table) {
        entries();
        return table;
    }

    /// Calls `each` with each name, and lets go of it, so that a long listing is not held beside all that is made of
    /// it.
    template <class Each>
    static void takeEach(QStringList&& names, const Each& each) {
        while (!names.isEmpty()) {
            each(names.takeFirst());
        }
    }

    /// Adds an entry and the rows by which it is looked up: all of it or, when memory runs out, nothing. So what a
    /// build that fails half-way has put into the list can be looked up. The trace is told the name by which finders
    /// look it up, and the folder that it tells.
    template <class... Rows>
    static void add(List& entries, const Entry& entry, const QString& name, const QString& folder, Rows&&... rows) {
        entries.push_back(entry);
        (rows.enter(), ...);
        Trace::tell([&] { return Trace::Entry{name, folder}; });
    }

private:
    Q_DISABLE_COPY_MOVE(Index)

    /// Called once, with the empty list.
    virtual void build(List& entries) = 0;

    const char* m_name;
    Lock m_lock{};
    List m_entries;
    bool m_needsBuild = true;
};
