#include "FindProgram.h"

#include "common/QtPrinters.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

namespace {

constexpr int longestRunMs = 60000;

QString textOf(const QByteArray& utf8) {
    return QString::fromUtf8(utf8).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

} // namespace

FindProgram::FindProgram()
    : m_folder(QDir::tempPath() + QStringLiteral("/finde-Käfer-XXXXXX")) {
    EXPECT_TRUE(m_folder.isValid()) << m_folder.errorString().toStdString();
    m_environment.remove(QString::fromLatin1(Recordings::environmentVariable));
    for (const char* const variable : {"COLUMNS", "NO_COLOR", "TERM"}) { // the wishes of who runs the tests
        m_environment.remove(QString::fromLatin1(variable));
    }
    m_environment.insert(QStringLiteral("XDG_DATA_HOME"), m_folder.path());
    m_environment.insert(QStringLiteral("XDG_CONFIG_HOME"), m_folder.filePath(QStringLiteral("settings")));
    m_environment.insert(QStringLiteral("LURULUDRI_FAKE_LOG"), m_folder.filePath(QStringLiteral("fake.log")));
}

QString FindProgram::file(const QString& name, const QByteArray& content) const {
    const QString path = m_folder.filePath(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly)) << path.toStdString();
    EXPECT_EQ(file.write(content), content.size());
    return QDir::toNativeSeparators(path);
}

void FindProgram::setFakeMode(const char* mode) {
    m_environment.insert(QStringLiteral("LURULUDRI_FAKE_MODE"), QString::fromLatin1(mode));
}

FindRun FindProgram::run(const QStringList& arguments) const {
    return runBare(QStringList{QStringLiteral("--plugin"), QStringLiteral(LURULUDRI_FAKE_PLUGIN)} + arguments);
}

FindRun FindProgram::runBare(const QStringList& arguments) const {
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setWorkingDirectory(m_folder.path());
    if (!m_inputFile.isEmpty()) {
        process.setStandardInputFile(m_inputFile);
    }
    process.setStandardOutputFile(m_outputFile);
    process.setStandardErrorFile(m_errorFile);
    process.start(QStringLiteral(LURULUDRI_FIND), arguments);
    if (!process.waitForStarted(longestRunMs)) { // Wine on a busy machine, once in some hundred times
        process.start(QStringLiteral(LURULUDRI_FIND), arguments);
    }
    EXPECT_TRUE(process.waitForFinished(longestRunMs)) << process.errorString().toStdString();
    const bool exited = process.exitStatus() == QProcess::NormalExit && process.error() == QProcess::UnknownError;
    return {exited ? process.exitCode() : -1,
            m_outputFile.isEmpty() ? textOf(process.readAllStandardOutput()) : QString(),
            m_errorFile.isEmpty() ? textOf(process.readAllStandardError()) : QString()};
}

void FindProgram::setInput(const QByteArray& input) {
    m_inputFile = file(QStringLiteral("input"), input);
}

void FindProgram::runUntilItSearches(const QStringList& arguments,
                                     const std::function<void(QProcess& process)>& end) const {
    QProcess process;
    process.setProcessEnvironment(m_environment);
    process.setStandardInputFile(m_inputFile.isEmpty() ? QProcess::nullDevice() : m_inputFile);
    process.start(QStringLiteral(LURULUDRI_FIND),
                  QStringList{QStringLiteral("--plugin"), QStringLiteral(LURULUDRI_FAKE_PLUGIN)} + arguments);
    EXPECT_TRUE(process.waitForStarted(longestRunMs)) << process.errorString().toStdString();
    while (process.state() != QProcess::NotRunning && !fakeLog().contains(QStringLiteral("searching"))) {
        process.waitForFinished(10);
    }
    EXPECT_EQ(process.state(), QProcess::Running);
    end(process);
    EXPECT_TRUE(process.waitForFinished(longestRunMs));
}

void FindProgram::redirect(const QString& outputFile, const QString& errorFile) {
    m_outputFile = outputFile;
    m_errorFile = errorFile;
}

QStringList FindProgram::fakeLog() const {
    QFile file(m_folder.filePath(QStringLiteral("fake.log")));
    return file.open(QIODevice::ReadOnly) ? textOf(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts)
                                          : QStringList();
}

QString docText(const QString& name) {
    QFile file(QStringLiteral(LURULUDRI_DOCS "/") + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << file.fileName().toStdString();
    return textOf(file.readAll());
}
