#include "find/record/OutputFile.h"

#include "find/pc/System.h"

#include <QDate>
#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace Find {

namespace {

const QLatin1String suffix(".json");

/// Tells of no PC which it is.
QString nameOfTheDay() {
    return QLatin1String("luruludri-pc-") + QDate::currentDate().toString(Qt::ISODate) + suffix;
}

QString fileFor(const QString& wanted) {
    if (wanted.isEmpty()) {
        // Where a user finds it, or where someone at a shell looks for it.
        const QString desktop = QStandardPaths::writableLocation(QStandardPaths::DesktopLocation);
        return isPcItself() && QFileInfo(desktop).isDir() ? QDir(desktop).filePath(nameOfTheDay()) : nameOfTheDay();
    }
    const bool isFolder = wanted.endsWith(QLatin1Char('/')) || wanted.endsWith(QDir::separator());
    if (isFolder || QFileInfo(wanted).isDir()) {
        return QDir(wanted).filePath(nameOfTheDay());
    }
    return wanted.endsWith(suffix, Qt::CaseInsensitive) ? wanted : wanted + suffix;
}

} // namespace

OutputFile::OutputFile(const QString& wanted, QString& fault)
    : m_name(fileFor(wanted))
    , m_file(m_name) {
    const QFileInfo info(m_name);
    if (info.exists() || info.isSymLink()) {
        fault = QStringLiteral("%1: the file is there already").arg(m_name);
    } else if (!QFileInfo(info.absolutePath()).isDir() || !QFileInfo(info.absolutePath()).isWritable()) {
        fault = QStringLiteral("%1: the file cannot be made").arg(m_name);
    }
}

bool OutputFile::write(const QByteArray& contents) {
    return m_file.open(QIODevice::WriteOnly) && m_file.write(contents) == contents.size() && m_file.commit();
}

} // namespace Find
