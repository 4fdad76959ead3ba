#include "FindProgram.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>

#include <csignal>

namespace {

QStringList filesIn(const QString& folder) {
    return QDir(folder).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
}

constexpr const char* oneGame =
    R"({"games": [{"name": "Wal", "finders": [{"type": "universalApp", "packageFamily": "Wal"}]}]})";

class InterruptedRecordingTest : public ::testing::Test {
protected:
    void SetUp() override {
        for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
            std::signal(signal, SIG_DFL); // which the program inherits; a shell's background or nohup ignores some
        }
        program.setVariable("TMPDIR", temporary);
    }

    /// What a shell's command with the program's path in "$0" leaves in the folder.
    QStringList filesAfter(const QString& command) {
        QProcess shell;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("TMPDIR", temporary);
        environment.insert("XDG_DATA_HOME", "/dev/null"); // where no log fits, which is a file, too
        shell.setProcessEnvironment(environment);
        shell.setWorkingDirectory(folder);
        shell.setStandardErrorFile(QProcess::nullDevice());
        shell.start("bash", {"-c", command, LURULUDRI_FIND});
        EXPECT_TRUE(shell.waitForFinished());
        return filesIn(folder);
    }

    FindProgram program;
    const QString folder = QFileInfo(program.file("new/x", "")).path();
    const QString temporary = QFileInfo(program.file("temporary/x", "")).path();
    const QString record = "\"$0\" --pc '" LURULUDRI_SAMPLES "/pc' record pc '" LURULUDRI_SAMPLES "/catalogue.json'";
};

TEST_F(InterruptedRecordingTest, LeavesNothing) {
    const QString catalogue = program.file("one.json", oneGame);
    program.setFakeMode("endless");
    for (const int signal : {SIGINT, SIGTERM, SIGHUP, SIGKILL}) {
        QFile::remove(program.folder() + "/fake.log");
        program.runUntilItSearches({"record", folder + "/pc", catalogue}, [signal](QProcess& process) {
            ::kill(static_cast<pid_t>(process.processId()), signal);
        });
        EXPECT_EQ(filesIn(folder), QStringList{"x"}) << signal;
        EXPECT_EQ(filesIn(temporary), QStringList{"x"}) << signal;
    }
}

TEST_F(InterruptedRecordingTest, LeavesNothingOfARecordingThatCameInOnStandardInput) {
    program.setFakeMode("endless");
    program.setInput(R"({"format": "luruludri-pc", "version": 1})");
    program.runUntilItSearches({"--pc", "-", program.file("one.json", oneGame)},
                               [](QProcess& process) { process.kill(); });
    EXPECT_EQ(filesIn(temporary), QStringList{"x"});
}

TEST_F(InterruptedRecordingTest, OfWhichNobodyReadsTheSummaryIsWhole) {
    EXPECT_EQ(filesAfter("exec 3> >(exit); wait $!; " + record + " >&3"), (QStringList{"pc.json", "x"}));
    EXPECT_EQ(program.runBare({"--pc", folder + "/pc.json", "runtimes"}).exitStatus, 0);
}

// A limit to the size of files kills in the midst of a write. Where the file system has files without a name, none is
// left that was not complete; elsewhere it has another name.
TEST_F(InterruptedRecordingTest, ThatIsKilledWhileItIsWrittenHasNotItsName) {
    const QStringList files = filesAfter("ulimit -c 0; ulimit -f 4; " + record + " && touch complete");
    EXPECT_EQ(files.filter(QRegularExpression("^(?!pc\\.json\\.[A-Za-z]{6}$)")), QStringList{"x"});
    EXPECT_EQ(filesIn(temporary), QStringList{"x"});
}

} // namespace
