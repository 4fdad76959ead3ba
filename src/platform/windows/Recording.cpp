#include "platform/Recording.h"

namespace Recording {

std::optional<std::vector<Problem>> problems(const QString&) {
    return std::nullopt;
}

} // namespace Recording
