#include "find/record/OutputFile.h"

#include "find/pc/System.h"
#include "find/record/WriteFault.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Find {

namespace {

/// Tells of no PC which it is.
QString nameOfTheDay(QLatin1String ending) {
    return QLatin1String("luruludri-pc-") + QDate::currentDate().toString(Qt::ISODate) + ending;
}

QString fileFor(const QString& wanted, QLatin1String ending) {
    if (wanted.isEmpty()) {
        // Where a user finds it, or where someone at a shell looks for it.
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        return isPcItself() && QFileInfo(desktop).isDir() ? QDir(desktop).filePath(nameOfTheDay(ending))
                                                          : nameOfTheDay(ending);
    }
    const bool isFolder = wanted.endsWith(QLatin1Char('/')) || wanted.endsWith(QDir::separator());
    if (isFolder || QFileInfo(wanted).isDir()) {
        return QDir(wanted).filePath(nameOfTheDay(ending));
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
    : m_name(fileFor(wanted, ending))
    , m_file(m_name) {
    const QFileInfo info(m_name);
    if (info.exists() || info.isSymLink()) {
        fault = QStringLiteral("%1: the file is there already").arg(m_name);
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
