#include "support/LogFile.h"

#include "platform/Clocks.h"
#include "platform/Files.h"
#include "platform/Process.h"
#include "support/FileVersion.h"
#include "support/HostExecutable.h"
#include "support/Paths.h"

#include <array>
#include <cstdio>

namespace {

constexpr qint64 largestSize = 10'485'760;

QString pathOf(const QByteArray& name, const LogFileOptions& options) {
    const QString folder = makeMakerFolderPath(options.folderKind, QStringLiteral("Logs"));
    Platform::createFolder(folder);

    QString path = Paths::join(folder, QString::fromLatin1(name));
    if (options.appendProcessName && !hostExecutableFileName().isEmpty()) {
        path += QLatin1Char('_') + hostExecutableFileName();
    }
    return path + QLatin1String(".log");
}

const char* modeOf(const LogFileOptions& options) {
    if (options.encoding == LogFileOptions::Encoding::Unicode) {
        return options.truncate ? "wt, ccs=UNICODE" : "at, ccs=UNICODE";
    }
    return options.truncate ? "wt" : "at";
}

} // namespace

LogFile::LogFile(const QByteArray& name, qint32 level, const LogFileOptions& options)
    : m_level(level)
    , m_options(options)
    , m_path(pathOf(name, options)) {
    if (m_level > 0) {
        rotateWhenLarge();
        ensureOpen();
    }
    // Level 0 switches off the rotation and the lines that have a level, not the file.
    if (m_options.bannerMode != LogFileOptions::BannerMode::None && ensureOpen()) {
        writeOpeningBanner();
    }
}

LogFile::~LogFile() {
    if (m_file && m_options.bannerMode != LogFileOptions::BannerMode::None) {
        writePrefix('A');
        m_file->write("============== LOG DESTROYED ==============\n");
        m_file->flush();
    }
}

void LogFile::writeLine(char letter, const QByteArray& utf8) {
    if (!ensureOpen()) {
        return;
    }
    writePrefix(letter);
    m_file->write({utf8.constData(), static_cast<std::size_t>(utf8.size())});
    m_file->write("\n");
    m_file->flush();
}

bool LogFile::ensureOpen() {
    if (!m_file) {
        m_file = Platform::openShared(m_path, modeOf(m_options));
    }
    return m_file != nullptr;
}

void LogFile::rotateWhenLarge() const {
    if (m_options.truncate || Platform::fileSize(m_path) <= largestSize) {
        return;
    }
    constexpr std::array<const char*, 6> suffixes{"", ".bak", ".ba2", ".ba3", ".ba4", ".ba5"};
    const auto withSuffix = [this](const char* suffix) { return m_path + QLatin1String(suffix); };

    Platform::deleteFile(withSuffix(suffixes.back()));
    for (std::size_t i = suffixes.size() - 1; i > 0; --i) {
        Platform::moveFile(withSuffix(suffixes.at(i - 1)), withSuffix(suffixes.at(i)));
    }
}

void LogFile::writeOpeningBanner() {
    writePrefix('A');
    m_file->write("=============== LOG CREATED ===============\n");
    writePrefix('A');
    m_file->write(
        QString::asprintf("PID: %lu\n", static_cast<unsigned long>(Platform::currentProcessId())).toStdString());
    if (m_options.bannerMode == LogFileOptions::BannerMode::BannersAndVersion) {
        const FileVersion version = readFileVersion(hostExecutablePath());
        writePrefix('A');
        m_file->write(QString::asprintf("EXE Version: %hu.%hu.%hu.%hu\n", version.major, version.minor, version.build,
                                        version.revision)
                          .toStdString());
    }
    m_file->flush();
}

void LogFile::writePrefix(char letter) noexcept {
    // On the stack, because the closing banner must come out even when memory has run out.
    std::array<char, 64> prefix{};
    const Platform::LocalTime time = Platform::localTime();
    std::snprintf(prefix.data(), prefix.size(), "%04i:%02i:%02i_%02i:%02i:%02i:%03i %c: ", time.year, time.month,
                  time.day, time.hour, time.minute, time.second, time.milliseconds, letter);
    m_file->write(prefix.data());
}
