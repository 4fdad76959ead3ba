#include "recordings/PcDescription.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    std::vector<Recordings::Problem> problems;
    Recordings::parsePcDescription(bytes, QStringLiteral("pc.json"), problems);
    return 0;
}
