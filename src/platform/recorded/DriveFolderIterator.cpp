#include "platform/recorded/DriveFolderIterator.h"

#include <QFileInfo>

namespace Recorded {

DriveFolderIterator::DriveFolderIterator(QDir::Filters filters, const QStringList& nameFilters, QString folder,
                                         bool isRoot, std::vector<QString> names)
    : QAbstractFileEngineIterator(filters, nameFilters)
    , m_folder(std::move(folder))
    , m_names(std::move(names)) {
    if (!isRoot) {
        m_names.insert(m_names.begin(), {QStringLiteral("."), QStringLiteral("..")});
    }
    if (!m_folder.endsWith(QLatin1Char('/'))) {
        m_folder += QLatin1Char('/');
    }
}

QString DriveFolderIterator::next() {
    if (!hasNext()) {
        return {};
    }
    ++m_position;
    return m_folder + currentFileName();
}

bool DriveFolderIterator::hasNext() const {
    return m_position < m_names.size();
}

QString DriveFolderIterator::currentFileName() const {
    return m_position == 0 ? QString() : m_names[m_position - 1];
}

QFileInfo DriveFolderIterator::currentFileInfo() const {
    return QFileInfo(m_folder + currentFileName());
}

} // namespace Recorded
