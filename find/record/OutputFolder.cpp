#include "find/record/OutputFolder.h"

#include "find/record/WriteFault.h"

#include <QDir>
#include <QFileInfo>

#include <cerrno>

namespace Find {

namespace {

constexpr QDir::Filters everything = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;

} // namespace

OutputFolder::OutputFolder(const QString& folder, QString& fault)
    : m_folder(QFileInfo(folder).absoluteFilePath()) {
    const QFileInfo info(m_folder);
    m_wasThere = info.exists() || info.isSymLink();
    if (m_wasThere && !info.isDir()) {
        fault = QStringLiteral("%1: is not a folder").arg(folder);
    } else if (m_wasThere && !QDir(m_folder).isEmpty(everything)) {
        fault = QStringLiteral("%1: the folder is not empty").arg(folder);
    } else if (!QDir().mkpath(m_folder) || !QFileInfo(m_folder).isWritable()) {
        const int error = errno;
        const QString cause = causeAgainstFolder(m_folder);
        fault =
            QStringLiteral("%1: the folder cannot be made: %2").arg(folder, cause.isEmpty() ? causeOf(error) : cause);
    } else {
        m_isToBeRemoved = true;
    }
}

OutputFolder::~OutputFolder() {
    if (m_isToBeRemoved) {
        QDir(m_folder).removeRecursively();
        if (m_wasThere) {
            QDir().mkpath(m_folder);
        }
    }
}

} // namespace Find
