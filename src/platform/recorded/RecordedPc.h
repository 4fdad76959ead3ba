#pragma once

#include "recordings/Recording.h"

#include <memory>

namespace Recorded {

/// One recorded PC, read when it is made. Nothing changes afterwards, so that any thread may ask.
class RecordedPc {
public:
    /// No PC: an empty registry, no drives, and the real process's environment.
    RecordedPc() = default;

    /// The PC recorded at `path`, an empty one when there is none.
    explicit RecordedPc(const QByteArray& path)
        : m_isActive(true)
        , m_pc(Recordings::readRecording(path).pc) {}

    /// Whether there is a PC to answer from.
    bool isActive() const { return m_isActive; }

    const Recordings::Registry& registry() const { return m_pc.registry; }

    const Recordings::Drives& drives() const { return m_pc.drives; }

    /// What is neither in the registry nor a file.
    const Recordings::Pc& description() const { return m_pc; }

private:
    bool m_isActive = false;
    Recordings::Pc m_pc;
};

/// The PC that the process answers from now, as the environment variable Recordings::environmentVariable says. Read
/// when the variable has a value for the first time and each time the value changes; whoever holds a PC keeps it. Also
/// makes Qt's file classes ask it for paths with a drive letter, from the first call on.
std::shared_ptr<const RecordedPc> currentPc();

/// Forgets what was read, so that the next call reads the recording again: for tests that change one.
void forgetPc();

} // namespace Recorded
