#include "platform/Versions.h"

#include "platform/recorded/RecordedPc.h"
#include "recordings/WindowsNames.h"

#include <cstring>

namespace Platform {

namespace {

// The fixed part of a version resource, which is all that a recording has of it.
struct FixedVersion {
    quint32 signature = 0xFEEF04BD;
    quint32 structureVersion = 0x00010000;
    quint32 fileVersionHigh = 0;
    quint32 fileVersionLow = 0;
    quint32 productVersionHigh = 0;
    quint32 productVersionLow = 0;
    quint32 flagsMask = 0x3F;
    quint32 flags = 0;
    quint32 system = 0x00040004; // Windows NT
    quint32 type = 1;            // an application
    quint32 subtype = 0;
    quint32 dateHigh = 0;
    quint32 dateLow = 0;
};

static_assert(sizeof(FixedVersion) == 52);

bool isSameFile(const QString& a, const QString& b) {
    const auto driveA = Recordings::DrivePath::parse(a);
    const auto driveB = Recordings::DrivePath::parse(b);
    if (driveA && driveB) {
        return Recordings::foldName(driveA->text()) == Recordings::foldName(driveB->text());
    }
    return a == b;
}

quint64 recordedVersion(const QString& path) {
    const auto pc = Recorded::currentPc();
    return isSameFile(path, pc->description().hostExecutable) ? pc->description().hostVersion : 0;
}

} // namespace

quint32 fileVersionInfoSize(const QString& path) {
    return recordedVersion(path) != 0 ? sizeof(FixedVersion) : 0;
}

bool fileVersionInfo(const QString& path, quint32 size, void* block) {
    const quint64 version = recordedVersion(path);
    if (version == 0 || size < sizeof(FixedVersion)) {
        return false;
    }
    FixedVersion record;
    record.fileVersionHigh = record.productVersionHigh = static_cast<quint32>(version >> 32U);
    record.fileVersionLow = record.productVersionLow = static_cast<quint32>(version);
    std::memcpy(block, &record, sizeof record);
    return true;
}

bool versionRootBlock(const void* block, const void*& record, quint32& length) {
    quint32 signature = 0;
    if (!block) {
        return false;
    }
    std::memcpy(&signature, block, sizeof signature);
    if (signature != FixedVersion().signature) {
        return false;
    }
    record = block;
    length = sizeof(FixedVersion);
    return true;
}

} // namespace Platform
