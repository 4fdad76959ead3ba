#pragma once

#include "trace/Events.h"

#include <QString>
#include <QtGlobal>

class QIODevice;

/// What the library asks of the PC, and why a finder goes on, told event by event (docs/trace.md) for whoever wants to
/// know why a game was not found. Off unless the host or the environment says where to; costs one look at a flag then.
///
/// Any thread may tell. Nothing fails: what can't be told, for want of memory too, is lost, and nothing else is.
namespace Trace {

/// What a process says about where its trace goes.
struct Origin {
    QIODevice* device = nullptr; ///< the host's, which goes before any file; borrowed, and given up when it goes
    QString file;                ///< what the environment names, which counts only …
    bool isElevated = false;     ///< … in a process without more rights than its user's own
};

/// Goes by what this process says now: opens the file, to add to it, or ends the trace.
void begin() noexcept;
void begin(const Origin& origin) noexcept;

bool isOn() noexcept;

/// Does what only the trace needs, for which memory may run out. False when it did.
template <class Work>
bool attempt(const Work& work) noexcept {
    try {
        work();
        return true;
    } catch (...) {
        return false;
    }
}

/// Writes an event down, which takes memory: for tell().
void write(const Event& event);

/// Tells the event that `makeEvent` returns, when the trace is on; it is not even made otherwise.
template <class MakeEvent>
void tell(const MakeEvent& makeEvent) noexcept {
    if (isOn()) {
        attempt([&makeEvent] { write(makeEvent()); });
    }
}

/// Tells in words why a finder goes on. The format is printf's, as Logger's.
void note(const char* format, ...) noexcept Q_ATTRIBUTE_FORMAT_PRINTF(1, 2);

/// The making of an index: told when it begins and when it ends, with the number of its entries.
class IndexSection {
public:
    explicit IndexSection(const char* name) noexcept;
    ~IndexSection();

    void setEntries(std::size_t entries) noexcept { m_entries = entries; }

private:
    Q_DISABLE_COPY_MOVE(IndexSection)

    const char* m_name;
    std::size_t m_entries = 0;
};

/// The asking of one member of a multi finder, counted from 1: told when it begins and when it ends.
class FinderSection {
public:
    explicit FinderSection(std::size_t number) noexcept;
    ~FinderSection();

    void setFound(bool found) noexcept { m_found = found; }

private:
    Q_DISABLE_COPY_MOVE(FinderSection)

    int m_number;
    bool m_found = false;
};

} // namespace Trace
