#include "find/record/OutputFile.h"

#include "find/pc/System.h"
#include "find/record/WriteFault.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Find {

namespace {

/// A file that is not there yet. Its name does not tell which PC it is about.
QString newFileOfTheDay(const QDir& folder, QLatin1String ending) {
    const QString name = QLatin1String("luruludri-pc-") + QDate::currentDate().toString(Qt::ISODate);
    QString file = name + ending;
    for (int number = 2; folder.exists(file); ++number) {
        file = QStringLiteral("%1-%2%3").arg(name, QString::number(number), ending);
    }
    return folder.filePath(file);
}

QString fileFor(const QString& wanted, QLatin1String ending) {
    if (wanted.isEmpty()) {
        // Where a user finds it, or where someone at a shell looks for it.
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        return newFileOfTheDay(isPcItself() && QFileInfo(desktop).isDir() ? QDir(desktop) : QDir(QString()), ending);
    }
    const bool isFolder = wanted.endsWith(QLatin1Char('/')) || wanted.endsWith(QDir::separator());
    if (isFolder || QFileInfo(wanted).isDir()) {
        return newFileOfTheDay(QDir(wanted), ending);
    }
    return wanted.endsWith(ending, Qt::CaseInsensitive) ? wanted : wanted + ending;
}

/// A disk that fills up takes a part, and only then says why it takes no more. A buffer would be written when it is too
/// late to hear of that.
bool writeAll(QSaveFile& file, const QByteArray& contents) {
    qint64 written = 0;
    while (written < contents.size()) {
        const qint64 more = file.write(contents.constData() + written, contents.size() - written);
        if (more <= 0) {
            return false;
        }
        written += more;
    }
    return true;
}

} // namespace

OutputFile::OutputFile(const QString& wanted, QLatin1String ending, QString& fault)
    : m_name(QDir::toNativeSeparators(fileFor(wanted, ending)))
    , m_file(m_name) {
    const QFileInfo info(m_name);
    if (info.exists() || info.isSymLink()) {
        fault = QStringLiteral("%1: the file exists already").arg(m_name);
        return;
    }
    const QString cause = causeAgainstFile(m_name);
    fault = cause.isEmpty() ? QString() : QStringLiteral("%1: the file cannot be made: %2").arg(m_name, cause);
}

QString OutputFile::write(const QByteArray& contents) {
    const bool isWritten = m_file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && writeAll(m_file, contents);
    return isWritten && m_file.commit() ? QString()
                                        : QStringLiteral("%1: the file cannot be written: %2")
                                              .arg(m_name, causeOf(m_file.error(), m_file.errorString()));
}

} // namespace Find
