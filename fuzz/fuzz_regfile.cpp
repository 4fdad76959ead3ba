#include "recordings/RecordedRegistry.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Recordings::RecordedRegistry registry;
    registry.apply(Recordings::parseRegFile(bytes, QStringLiteral("fuzz.reg")).keys);
    return 0;
}
