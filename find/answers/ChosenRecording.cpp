#include "find/answers/ChosenRecording.h"

#include "find/pc/System.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Find {

namespace {

QString describeFile(const QString& path, const QString& file) {
    const QString relative =
        QDir(QFileInfo(path).absoluteFilePath()).relativeFilePath(QFileInfo(file).absoluteFilePath());
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

std::optional<QByteArray> readInput(QString& fault) {
    QFile input;
    const bool isRead = input.open(stdin, QIODevice::ReadOnly);
    const QByteArray contents = input.readAll();
    if (!isRead || input.error() != QFileDevice::NoError) {
        fault = QStringLiteral("cannot be read: ") + input.errorString();
        return std::nullopt;
    }
    return contents;
}

std::optional<QString> PcFromInput::file(Complaint& fault) {
    QString message = QStringLiteral("there is no memory to hold it");
    const std::optional<QByteArray> recording = readInput(message);
    m_file = recording ? fileInMemory(*recording) : QString();
    if (!m_file.isEmpty()) {
        return m_file;
    }
    fault = {inputName(), 0, 0, message};
    return std::nullopt;
}

Complaint PcFromInput::shown(Complaint complaint) const {
    if (complaint.file == m_file && !m_file.isEmpty()) {
        complaint.file = inputName();
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
