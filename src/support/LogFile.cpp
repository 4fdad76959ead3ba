#include "support/LogFile.h"

#include "platform/Clocks.h"
#include "platform/Files.h"
#include "platform/FolderLock.h"
#include "platform/Process.h"
#include "support/FileVersion.h"
#include "support/HostExecutable.h"
#include "support/LogPrefix.h"

#include <QDir>
#include <QFileInfo>

#include <array>

namespace {

constexpr qint64 largestSize = 10'485'760;

QString pathOf(const QByteArray& name, const LogFileOptions& options) {
    const QString folder = makeMakerFolderPath(options.folderKind, QStringLiteral("Logs"));
    Platform::createFolder(folder);

    const QString processName = options.appendProcessName ? hostExecutableFileName() : QString();
    return folder + QDir::separator() + logFileName(name, processName);
}

const char* modeOf(const LogFileOptions& options) {
    if (options.encoding == LogFileOptions::Encoding::Unicode) {
        return options.truncate ? "wt, ccs=UNICODE" : "at, ccs=UNICODE";
    }
    return options.truncate ? "wt" : "at";
}

void writePrefix(Platform::TextStream& file, char letter) noexcept {
    file.write(logPrefix(Platform::localTime(), letter).data());
}

} // namespace

QString logFileName(const QByteArray& name, const QString& processName) {
    const QString suffix = processName.isEmpty() ? QString() : QLatin1Char('_') + processName;
    return QString::fromLatin1(name) + suffix + QLatin1String(".log");
}

LogFile::LogFile(const QByteArray& name, qint32 level, const LogFileOptions& options)
    : m_level(level)
    , m_options(options)
    , m_path(pathOf(name, options)) {
    if (m_level > 0) {
        rotateWhenLarge();
        openedFile();
    }
    // Level 0 switches off the rotation and the lines that have a level, not the file.
    if (!hasBanners()) {
        return;
    }
    if (Platform::TextStream* const file = openedFile()) {
        writeOpeningBanner(*file);
    }
}

LogFile::~LogFile() {
    Platform::TextStream* const file = m_file.get();
    if (file && hasBanners()) {
        writePrefix(*file, 'A');
        file->write("============== LOG DESTROYED ==============\n");
        file->flush();
    }
}

void LogFile::writeLine(char letter, const QByteArray& utf8) {
    Platform::TextStream* const file = openedFile();
    if (!file) {
        return;
    }
    writePrefix(*file, letter);
    file->write({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    file->write("\n");
    file->flush();
}

bool LogFile::hasBanners() const noexcept {
    return m_options.bannerMode == LogFileOptions::BannerMode::Banners ||
           m_options.bannerMode == LogFileOptions::BannerMode::BannersAndVersion;
}

Platform::TextStream* LogFile::openedFile() {
    Platform::TextStream* const file = m_file.get();
    return file ? file : m_file.offer(Platform::openShared(m_path, modeOf(m_options)));
}

bool LogFile::isLarge() const {
    return Platform::fileSize(m_path) > largestSize;
}

void LogFile::rotateWhenLarge() const {
    if (m_options.truncate || !isLarge()) {
        return;
    }
    // Another process may find the same now; if both rotated, a file that has just begun would push the oldest one out.
    const auto lock = Platform::lockFolder(QFileInfo(m_path).path());
    if (isLarge()) {
        rotate();
    }
}

void LogFile::rotate() const {
    constexpr std::array<const char*, 6> suffixes{"", ".bak", ".ba2", ".ba3", ".ba4", ".ba5"};
    const auto withSuffix = [this](const char* suffix) { return m_path + QLatin1String(suffix); };

    Platform::deleteFile(withSuffix(suffixes.back()));
    for (std::size_t i = suffixes.size() - 1; i > 0; --i) {
        Platform::moveFile(withSuffix(suffixes.at(i - 1)), withSuffix(suffixes.at(i)));
    }
}

void LogFile::writeOpeningBanner(Platform::TextStream& file) const {
    writePrefix(file, 'A');
    file.write("=============== LOG CREATED ===============\n");
    writePrefix(file, 'A');
    file.write(QString::asprintf("PID: %lu\n", static_cast<unsigned long>(Platform::currentProcessId())).toStdString());
    if (m_options.bannerMode == LogFileOptions::BannerMode::BannersAndVersion) {
        const FileVersion version = readFileVersion(hostExecutablePath());
        writePrefix(file, 'A');
        file.write(QString::asprintf("EXE Version: %hu.%hu.%hu.%hu\n", version.major, version.minor, version.build,
                                     version.revision)
                       .toStdString());
    }
    file.flush();
}
