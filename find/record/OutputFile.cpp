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
    const bool isWritten =
        m_file.open(QIODevice::WriteOnly) && m_file.write(contents) == contents.size() && m_file.commit();
    return isWritten ? QString()
                     : QStringLiteral("%1: the file cannot be written: %2")
                           .arg(m_name, causeOf(m_file.error(), m_file.errorString()));
}

} // namespace Find
