#include "recordings/RegFileWriter.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>

/// What was read and written reads as what it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<int>(size));
    Recordings::Registry registry;
    registry.apply(Recordings::parseRegFile(bytes, QStringLiteral("fuzz.reg")).keys);
    QStringList leftOut;
    const QByteArray written = Recordings::renderRegFile(registry, leftOut);
    Recordings::Registry again;
    again.apply(Recordings::parseRegFile(written, QStringLiteral("again.reg")).keys);
    if (leftOut.isEmpty() && !(again == registry)) {
        std::abort();
    }
    return 0;
}
