#include "platform/recorded/PcPaths.h"

namespace Recorded {

QChar currentDrive(const RecordedPc& pc) {
    const std::optional<Recordings::DrivePath> host = Recordings::DrivePath::parse(pc.description().hostExecutable);
    return host ? host->letter.toUpper() : QChar(u'C');
}

} // namespace Recorded
