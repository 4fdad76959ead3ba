#pragma once

#include "find/terminal/Complaint.h"
#include "recordings/Recording.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

namespace Find {

/// What a user calls standard input.
inline QString inputName() {
    return QStringLiteral("standard input");
}

/// All of standard input. No value when it cannot be read; `fault` then says why.
std::optional<QByteArray> readInput(QString& fault);

/// A recorded PC that comes in on standard input. The plug-in reads a file, so it is one, in memory alone: what ends
/// the program leaves nothing of it behind.
class PcFromInput {
public:
    /// The file's name, when all was read. No value otherwise; `fault` then says why.
    std::optional<QString> file(Complaint& fault);

    /// A complaint with what the user calls the file.
    Complaint shown(Complaint complaint) const;

private:
    QString m_file;
};

/// Chooses the recorded PC at `path`, a file or a folder, for this process and reads it. Without a path the choice of
/// the environment stands. `fault` says why it cannot be used. No value when there is none, or none was chosen. To be
/// called before the plug-in is loaded.
std::optional<Recordings::Recording> chooseRecordedPc(const std::optional<QString>& path, Complaint& fault);

/// What in the recording at `path` cannot be read, the files named as the user named the path.
std::vector<Complaint> describeProblems(const QString& path, const std::vector<Recordings::Problem>& problems);

} // namespace Find
