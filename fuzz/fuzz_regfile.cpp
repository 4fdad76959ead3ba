#include "fuzz/Fuzz.h"
#include "recordings/RegFileWriter.h"

/// What was read and written reads as what it is.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Recordings::Registry registry;
    registry.apply(Recordings::parseRegFile(Fuzz::bytesOf(data, size), QStringLiteral("fuzz.reg")).keys);
    QStringList leftOut;
    const QByteArray written = Recordings::renderRegFile(registry, leftOut);
    Recordings::Registry again;
    again.apply(Recordings::parseRegFile(written, QStringLiteral("again.reg")).keys);
    Fuzz::require(!leftOut.isEmpty() || again == registry, "read as written");
    return 0;
}
