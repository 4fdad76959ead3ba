#pragma once

#include <QByteArray>
#include <QSaveFile>
#include <QString>

namespace Find {

/// A new file that a recording, or a page that carries one, is written into. It appears under its name when it is
/// complete and not before.
class OutputFile {
public:
    /// `wanted` is the file as the user named it; the ending ".json", say, is added where it has another. A folder, or
    /// nothing, gets a file named after the day. `fault` says why it can't be written: one that is there is left alone.
    OutputFile(const QString& wanted, QLatin1String ending, QString& fault);

    const QString& name() const { return m_name; }

    /// Why that failed, the file's name first; the file is then not there. Empty when it is.
    QString write(const QByteArray& contents);

private:
    Q_DISABLE_COPY_MOVE(OutputFile)

    QString m_name;
    QSaveFile m_file;
};

} // namespace Find
