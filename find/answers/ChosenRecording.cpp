#include "find/answers/ChosenRecording.h"

#include "find/pc/System.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

namespace Find {

namespace {

QString describeFile(const QString& path, const QString& file) {
    const QString relative = QDir(path).relativeFilePath(file);
    if (relative == QLatin1String(".")) {
        return path;
    }
    const bool isWithin = QFileInfo(relative).isRelative() && !relative.startsWith(QLatin1String(".."));
    return isWithin ? QDir(path).filePath(relative) : file;
}

QString describe(const QString& path, const Recordings::Problem& problem) {
    QString place = describeFile(path, problem.file);
    if (problem.line > 0) {
        place += QLatin1Char(':') + QString::number(problem.line);
    }
    return place + QLatin1String(": ") + problem.message;
}

/// With the recordings a level deeper, which may have been meant.
QString describeFault(const QString& path, const QByteArray& folder, const QString& fault) {
    QStringList meant;
    for (const QByteArray& name : Recordings::recordingsIn(folder)) {
        meant.append(QDir(path).filePath(QString::fromUtf8(name)));
    }
    const QString text = path + QLatin1String(": ") + fault;
    return meant.isEmpty() ? text : text + QStringLiteral("; did you mean %1?").arg(meant.join(QLatin1String(" or ")));
}

} // namespace

std::optional<QString> PcFromInput::file(QString& fault) {
    QFile input;
    const bool isRead = input.open(stdin, QIODevice::ReadOnly);
    const QByteArray recording = input.readAll();
    if (!isRead || input.error() != QFileDevice::NoError) {
        fault = QStringLiteral("standard input: cannot be read: ") + input.errorString();
    } else if (!m_file.open() || m_file.write(recording) != recording.size() || !m_file.flush()) {
        fault = m_file.fileName() + QStringLiteral(": cannot be written: ") + m_file.errorString();
    }
    return fault.isEmpty() ? std::optional<QString>(m_file.fileName()) : std::nullopt;
}

QString PcFromInput::shown(QString message) const {
    return m_file.fileName().isEmpty() ? message : message.replace(m_file.fileName(), QStringLiteral("standard input"));
}

QStringList describeProblems(const QString& path, const std::vector<Recordings::Problem>& problems) {
    QStringList lines;
    for (const Recordings::Problem& problem : problems) {
        lines.append(describe(path, problem));
    }
    return lines;
}

std::optional<Recordings::Recording> chooseRecordedPc(const std::optional<QString>& path, QString& fault) {
    if (path && isPcItself()) {
        fault = QStringLiteral("--pc: this build answers from the PC it runs on");
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
        fault = describeFault(path.value_or(QFile::decodeName(chosen)), chosen, recording.fault);
        return std::nullopt;
    }
    return recording;
}

} // namespace Find
