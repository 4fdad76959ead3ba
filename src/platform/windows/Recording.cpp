#include "platform/Recording.h"

namespace Recordings {

std::optional<std::vector<Problem>> problems(const QString&) {
    return std::nullopt;
}

} // namespace Recordings
