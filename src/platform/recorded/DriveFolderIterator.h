#pragma once

#include <QtCore/private/qabstractfileengine_p.h>

#include <vector>

namespace Recorded {

/// Hands the names in one folder of a recorded PC to QDir and QDirIterator, which filter them.
class DriveFolderIterator : public QAbstractFileEngineIterator {
public:
    /// `isRoot`: the folder has no "." and "..", which every other one has before its names.
    DriveFolderIterator(QDir::Filters filters, const QStringList& nameFilters, QString folder, bool isRoot,
                        std::vector<QString> names);

    QString next() override;
    bool hasNext() const override;
    QString currentFileName() const override;
    QFileInfo currentFileInfo() const override;

private:
    QString m_folder; ///< as the caller wrote it, with slashes
    std::vector<QString> m_names;
    size_t m_position = 0; ///< behind the current name; 0 before the first
};

} // namespace Recorded
