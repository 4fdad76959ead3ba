#include "platform/Files.h"

#include "platform/recorded/RecordedPc.h"

#include <QFile>

#include <cstdio>
#include <filesystem>
#include <system_error>

#include <sys/stat.h>
#include <unistd.h>

namespace Platform {

namespace {

// A recorded PC is never written to, and without one there is no drive.
bool isOnDrive(const QString& path) {
    return Recordings::DrivePath::parse(path).has_value();
}

} // namespace

qint64 fileSize(const QString& path) {
    if (const auto drivePath = Recordings::DrivePath::parse(path)) {
        const std::shared_ptr<const Recorded::RecordedPc> pc = Recorded::currentPc();
        const Recordings::File* const file = pc->drives().find(*drivePath);
        return file ? file->contents.size() : -1;
    }

    struct stat info {};

    return ::stat(QFile::encodeName(path).constData(), &info) == 0 ? info.st_size : -1;
}

bool createFolder(const QString& path) {
    if (!path.startsWith(QLatin1Char('/'))) {
        return false;
    }
    std::filesystem::path folder(QFile::encodeName(path).toStdString());
    if (!folder.has_filename()) { // ends in a separator
        folder = folder.parent_path();
    }
    std::error_code error;
    return std::filesystem::create_directories(folder, error) && !error;
}

bool deleteFile(const QString& path) {
    return !isOnDrive(path) && ::unlink(QFile::encodeName(path).constData()) == 0;
}

bool moveFile(const QString& from, const QString& to) {
    return !isOnDrive(from) && !isOnDrive(to) &&
           std::rename(QFile::encodeName(from).constData(), QFile::encodeName(to).constData()) == 0;
}

} // namespace Platform
