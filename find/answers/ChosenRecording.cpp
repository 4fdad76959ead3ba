#include "find/answers/ChosenRecording.h"

#include "find/pc/System.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Find {

namespace {

const QLatin1String standardInput("standard input");

QString describeFile(const QString& path, const QString& file) {
    const QString relative = QDir(path).relativeFilePath(file);
    if (relative == QLatin1String(".")) {
        return path;
    }
    const bool isWithin = QFileInfo(relative).isRelative() && !relative.startsWith(QLatin1String(".."));
    return isWithin ? QDir(path).filePath(relative) : file;
}

/// With the recordings a level deeper, which may have been meant.
QString meantInstead(const QString& path, const QByteArray& folder) {
    constexpr int most = 3;
    QStringList meant;
    for (const QByteArray& name : Recordings::recordingsIn(folder)) {
        meant.append(QDir(path).filePath(QString::fromUtf8(name)));
    }
    return meant.isEmpty() ? QString()
                           : QStringLiteral("; did you mean %1?").arg(meant.mid(0, most).join(QLatin1String(" or ")));
}

} // namespace

std::optional<QString> PcFromInput::file(Complaint& fault) {
    QFile input;
    const bool isRead = input.open(stdin, QIODevice::ReadOnly);
    const QByteArray recording = input.readAll();
    if (!isRead || input.error() != QFileDevice::NoError) {
        fault = {standardInput, 0, 0, QStringLiteral("cannot be read: ") + input.errorString()};
    } else if (!m_file.open() || m_file.write(recording) != recording.size() || !m_file.flush()) {
        fault = {m_file.fileName(), 0, 0, QStringLiteral("cannot be written: ") + m_file.errorString()};
    }
    return fault.message.isEmpty() ? std::optional<QString>(m_file.fileName()) : std::nullopt;
}

Complaint PcFromInput::shown(Complaint complaint) const {
    if (complaint.file == m_file.fileName() && !complaint.file.isEmpty()) {
        complaint.file = standardInput;
    }
    return complaint;
}

std::vector<Complaint> describeProblems(const QString& path, const std::vector<Recordings::Problem>& problems) {
    std::vector<Complaint> complaints;
    complaints.reserve(problems.size());
    for (const Recordings::Problem& problem : problems) {
        complaints.emplace_back(describeFile(path, problem.file), problem.line, 0, problem.message);
    }
    return complaints;
}

std::optional<Recordings::Recording> chooseRecordedPc(const std::optional<QString>& path, Complaint& fault) {
    if (path && isPcItself()) {
        fault = Complaint(QStringLiteral("--pc: this build answers from the PC it runs on"));
        return std::nullopt;
    }
    if (path) {
        setEnvironmentVariable(Recordings::environmentVariable, QFileInfo(*path).absoluteFilePath());
    }
    const QByteArray chosen = qgetenv(Recordings::environmentVariable);
    if (chosen.isEmpty() || isPcItself()) {
        return std::nullopt;
    }
    Recordings::Recording recording = Recordings::readRecording(chosen);
    if (!recording.fault.isEmpty()) {
        const QString name = path.value_or(QFile::decodeName(chosen));
        fault = {name, recording.faultLine, 0, recording.fault + meantInstead(name, chosen)};
        return std::nullopt;
    }
    return recording;
}

} // namespace Find
