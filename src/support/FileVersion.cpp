#include "support/FileVersion.h"

#include "platform/Versions.h"

#include <cstring>
#include <vector>

namespace {

/// VS_FIXEDFILEINFO (learn.microsoft.com/windows/win32/api/verrsrc/ns-verrsrc-vs_fixedfileinfo).
struct FixedFileInfo {
    quint32 signature;
    quint32 structVersion;
    quint32 fileVersionHigh;
    quint32 fileVersionLow;
    quint32 rest[9];
};

static_assert(sizeof(FixedFileInfo) == 52, "the layout that Windows documents");

constexpr quint16 highHalf(quint32 word) {
    return static_cast<quint16>(word >> 16);
}

constexpr quint16 lowHalf(quint32 word) {
    return static_cast<quint16>(word & 0xFFFFU);
}

} // namespace

FileVersion readFileVersion(const QString& path) {
    const quint32 size = Platform::fileVersionInfoSize(path);
    if (size == 0) {
        return {};
    }
    std::vector<unsigned char> block(size);
    const void* record = nullptr;
    quint32 length = 0;
    if (!Platform::fileVersionInfo(path, size, block.data()) ||
        !Platform::versionRootBlock(block.data(), record, length) || length != sizeof(FixedFileInfo)) {
        return {};
    }
    FixedFileInfo info{};
    std::memcpy(&info, record, sizeof info);
    return {highHalf(info.fileVersionHigh), lowHalf(info.fileVersionHigh), highHalf(info.fileVersionLow),
            lowHalf(info.fileVersionLow)};
}
