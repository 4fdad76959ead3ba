#pragma once

#include <QString>
#include <QtGlobal>

namespace Find {

/// A new folder that a recording is written into. Removed again, with what is in it, unless it is kept.
class OutputFolder {
public:
    /// Makes the folder; one that exists must be empty. `fault` says why it can't be used.
    OutputFolder(const QString& folder, QString& fault);
    ~OutputFolder();

    /// The folder's full path.
    const QString& path() const { return m_folder; }

    void keep() { m_isToBeRemoved = false; }

private:
    Q_DISABLE_COPY_MOVE(OutputFolder)

    QString m_folder;
    bool m_wasThere = false;
    bool m_isToBeRemoved = false;
};

} // namespace Find
