#include "platform/Recording.h"

#include "platform/recorded/RecordedPc.h"

#include <QFile>

namespace Recordings {

std::optional<std::vector<Problem>> problems(const QString& folder) {
    return Recorded::RecordedPc(QFile::encodeName(folder)).problems();
}

} // namespace Recordings
