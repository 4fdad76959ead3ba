#pragma once

#include "platform/TextStream.h"
#include "support/FirstOffered.h"
#include "support/KnownFolders.h"

#include <QByteArray>
#include <QString>
#include <QtGlobal>

/// How a log file is named, opened and framed. The defaults are the ones that this library uses.
struct LogFileOptions {
    enum class Encoding { Plain = 0, Unicode = 1 };
    enum class BannerMode { None = 0, Banners = 1, BannersAndVersion = 2 };

    Encoding encoding =
        Encoding::Plain;            ///< Plain: UTF-8. Unicode: the C runtime's own, UTF-16LE with a byte-order mark
    bool appendProcessName = false; ///< whether the host executable's file name becomes part of the log's name
    bool truncate = false;          ///< whether the file starts empty; it is then not rotated
    BannerMode bannerMode = BannerMode::Banners;
    int folderKind = FolderKind::localAppData;
};

/// The name of the file of the log `name`: `processName` after a "_", if it is not empty, and ".log".
QString logFileName(const QByteArray& name, const QString& processName);

/// One log file: a text file with CR LF line ends in the folder Veltrane\Logs, named after its logger, opened once and
/// kept open. A file of more than 10 MiB is moved to ".bak" before it is opened, after ".bak" went to ".ba2" and so on
/// up to ".ba5".
///
/// Every failure is silent, as there is nobody to tell. A file that could not be opened is tried again at every line.
/// Has no lock: lines of several threads may interleave, and a file that opens late for several at once may be opened
/// by each of them, to be closed again by all but one. Other processes may write to the same file: their lines come
/// between this one's, and who opens it at once with them does not rotate it once more.
class LogFile {
public:
    /// Opens the file and writes the opening banner. `name` is ASCII; `level` is 0 or below for a file that is not
    /// rotated and that takes only lines of letter "A".
    LogFile(const QByteArray& name, qint32 level, const LogFileOptions& options);

    /// Writes the closing banner and closes the file.
    ~LogFile();

    qint32 level() const { return m_level; }

    /// The full path of the file.
    const QString& path() const { return m_path; }

    /// Writes one line: the time, the level letter, the text.
    void writeLine(char letter, const QByteArray& utf8);

private:
    Q_DISABLE_COPY_MOVE(LogFile)

    bool hasBanners() const noexcept;
    bool isLarge() const;
    void rotateWhenLarge() const;
    void rotate() const;
    Platform::TextStream* openedFile();
    void writeOpeningBanner(Platform::TextStream& file) const;

    FirstOffered<Platform::TextStream> m_file;
    qint32 m_level;
    LogFileOptions m_options;
    QString m_path;
};
