#pragma once

#include "platform/Recording.h"
#include "platform/recorded/Drives.h"
#include "recordings/PcDescription.h"
#include "recordings/RecordedRegistry.h"

#include <memory>

namespace Recorded {

/// One recorded PC. Its registry and description are read when it is made; its drives are read when they are asked.
/// Nothing changes afterwards, so that any thread may ask.
class RecordedPc {
public:
    /// No PC: an empty registry, no drives, and the real process's environment.
    RecordedPc() = default;

    /// The PC recorded in `folder`, an empty one when there is no such folder.
    explicit RecordedPc(const QByteArray& folder);

    /// Whether there is a PC to answer from.
    bool isActive() const { return m_isActive; }

    const Recordings::RecordedRegistry& registry() const { return m_registry; }

    const Recordings::PcDescription& description() const { return m_description; }

    const Drives& drives() const { return m_drives; }

    const std::vector<Recordings::Problem>& problems() const { return m_problems; }

private:
    void readRegistry(const QByteArray& folder);
    void readDescription(const QByteArray& file);
    void report(const QByteArray& path, const QString& message);

    bool m_isActive = false;
    Recordings::RecordedRegistry m_registry;
    Recordings::PcDescription m_description;
    Drives m_drives;
    std::vector<Recordings::Problem> m_problems;
};

/// The PC that the process answers from now, as the environment variable Recordings::environmentVariable says. Read
/// when the variable has a value for the first time and each time the value changes; whoever holds a PC keeps it. Also
/// makes Qt's file classes ask it for paths with a drive letter, from the first call on.
std::shared_ptr<const RecordedPc> currentPc();

/// Forgets what was read, so that the next call reads the folder again: for tests that change a recording.
void forgetPc();

} // namespace Recorded
