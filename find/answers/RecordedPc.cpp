#include "find/answers/RecordedPc.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace Host {

namespace {

QString describeFile(const QString& folder, const QString& file) {
    const QString relative = QDir(folder).relativeFilePath(file);
    if (relative == QLatin1String(".")) {
        return folder;
    }
    const bool isWithin = QFileInfo(relative).isRelative() && !relative.startsWith(QLatin1String(".."));
    return isWithin ? QDir(folder).filePath(relative) : file;
}

QString describe(const QString& folder, const Recordings::Problem& problem) {
    QString place = describeFile(folder, problem.file);
    if (problem.line > 0) {
        place += QLatin1Char(':') + QString::number(problem.line);
    }
    return place + QLatin1String(": ") + problem.message;
}

/// Looks through the recording. No value on a system without recordings.
std::optional<RecordedPc> check(const QString& folder) {
    const std::optional<std::vector<Recordings::Problem>> problems =
        Recordings::problems(QFileInfo(folder).absoluteFilePath());
    if (!problems) {
        return std::nullopt;
    }
    if (!QFileInfo(folder).isDir()) {
        return RecordedPc{QStringLiteral("%1: no such folder").arg(folder), {}};
    }
    return RecordedPc{QString(), describeProblems(folder, *problems)};
}

} // namespace

QStringList describeProblems(const QString& folder, const std::vector<Recordings::Problem>& problems) {
    QStringList lines;
    for (const Recordings::Problem& problem : problems) {
        lines.append(describe(folder, problem));
    }
    return lines;
}

RecordedPc chooseRecordedPc(const std::optional<QString>& folder) {
    if (!folder) {
        const QString chosenBefore = qEnvironmentVariable(Recordings::environmentVariable);
        return chosenBefore.isEmpty() ? RecordedPc() : check(chosenBefore).value_or(RecordedPc());
    }
    const QString absolute = QFileInfo(*folder).absoluteFilePath();
    qputenv(Recordings::environmentVariable, QFile::encodeName(absolute));
    return check(*folder).value_or(RecordedPc{QStringLiteral("--pc: this build answers from the PC it runs on"), {}});
}

} // namespace Host
