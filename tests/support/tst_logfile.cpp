#include "support/LogFile.h"

#include "support/HostExecutable.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

constexpr qint64 limit = 10'485'760;
constexpr const char* timePattern = R"(\d{4}:\d{2}:\d{2}_\d{2}:\d{2}:\d{2}:\d{3} )";

class LogFileTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(QDir().mkpath(pc.logFolder())); }

    QString path(const QString& suffix = {}) const { return pc.logPath("Test") + suffix; }

    void write(const QString& suffix, const QByteArray& bytes) const {
        QFile file(path(suffix));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }

    void writeOfSize(qint64 size) const {
        write("", "old log");
        ASSERT_TRUE(QFile::resize(path(), size));
    }

    QByteArray read(const QString& suffix = {}) const {
        QFile file(path(suffix));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(missing)");
    }

    /// The log's lines without their times.
    QStringList lines() const {
        QString text = QString::fromUtf8(read());
        EXPECT_FALSE(text.contains(QRegularExpression("[^\r]\n"))) << "every line ends with CR LF";
        text.remove(QRegularExpression(QString("^") + timePattern, QRegularExpression::MultilineOption));
        return text.split("\r\n", Qt::SkipEmptyParts);
    }

    static QString pid() { return QString("A: PID: %1").arg(QCoreApplication::applicationPid()); }

    static LogFileOptions options(LogFileOptions::BannerMode bannerMode) {
        LogFileOptions options;
        options.bannerMode = bannerMode;
        return options;
    }

    const TestPc pc;
    const QString created = "A: =============== LOG CREATED ===============";
    const QString destroyed = "A: ============== LOG DESTROYED ==============";
};

TEST_F(LogFileTest, LiesInTheMakersFolderAndIsNamedAfterItsLogger) {
    ASSERT_TRUE(QDir(pc.logFolder()).removeRecursively());
    const LogFile file("Quorvan.Finders.SteamGames", 2, {});
    EXPECT_EQ(file.path(), ownPath(pc.logFolder(), "Quorvan.Finders.SteamGames.log"));
    EXPECT_TRUE(QFile::exists(file.path())) << "the folder is made on the way";
}

TEST_F(LogFileTest, ALineIsTheTimeTheLetterAndTheText) {
    { LogFile("Test", 2, options(LogFileOptions::BannerMode::None)).writeLine('E', "Käfer 競走 \xF0\x9F\x8E\xAE"); }
    const QByteArray log = read();
    const QRegularExpression line("^" + QString(timePattern) + "E: (.*)\r\n$");
    const QRegularExpressionMatch match = line.match(QString::fromUtf8(log));
    ASSERT_TRUE(match.hasMatch()) << log.toStdString();
    EXPECT_EQ(match.captured(1), QString::fromUtf8("Käfer 競走 \xF0\x9F\x8E\xAE"));
}

TEST_F(LogFileTest, TheTimeIsLocal) {
    const QDateTime before = QDateTime::currentDateTime();
    { LogFile("Test", 2, options(LogFileOptions::BannerMode::None)).writeLine('A', "x"); }
    const QDateTime after = QDateTime::currentDateTime();
    const QDateTime written = QDateTime::fromString(QString::fromLatin1(read().left(23)), "yyyy:MM:dd_HH:mm:ss:zzz");
    EXPECT_GE(written.addMSecs(20), before);
    EXPECT_LE(written, after.addMSecs(20));
}

TEST_F(LogFileTest, IsFramedByBannersAndTheProcessId) {
    {
        LogFile file("Test", 2, options(LogFileOptions::BannerMode::Banners));
        EXPECT_THAT(lines(), ElementsAre(created, pid())) << "on disk at once";
        file.writeLine('A', "text");
        EXPECT_THAT(lines(), ElementsAre(created, pid(), "A: text")) << "on disk at once";
    }
    EXPECT_THAT(lines(), ElementsAre(created, pid(), "A: text", destroyed));
}

TEST_F(LogFileTest, TheBannerCanNameTheHostsVersion) {
    { const LogFile file("Test", 2, options(LogFileOptions::BannerMode::BannersAndVersion)); }
    EXPECT_THAT(lines(), ElementsAre(created, pid(), "A: EXE Version: 3.1.4159.65535", destroyed));
}

TEST_F(LogFileTest, CanDoWithoutBanners) {
    { const LogFile file("Test", 2, options(LogFileOptions::BannerMode::None)); }
    EXPECT_EQ(read(), "") << "opened all the same";
}

TEST_F(LogFileTest, WithoutBannersAndAtLevelZeroItIsOpenedByItsFirstLine) {
    {
        LogFile file("Test", 0, options(LogFileOptions::BannerMode::None));
        EXPECT_EQ(read(), "(missing)");
        file.writeLine('A', "text");
    }
    EXPECT_THAT(lines(), ElementsAre("A: text"));
}

TEST_F(LogFileTest, TheNextOneAppends) {
    { const LogFile file("Test", 2, {}); }
    { const LogFile file("Test", 2, {}); }
    EXPECT_THAT(lines(), ElementsAre(created, pid(), destroyed, created, pid(), destroyed));
}

TEST_F(LogFileTest, CanCarryTheHostsName) {
    LogFileOptions options;
    options.appendProcessName = true;
    const LogFile file("Test", 2, options);
    EXPECT_EQ(file.path(), ownPath(pc.logFolder(), "Test_" + hostExecutableFileName() + ".log"));
    EXPECT_TRUE(QFile::exists(file.path()));
}

TEST_F(LogFileTest, AHostWithoutANameAddsNothingToItsName) {
    EXPECT_EQ(logFileName("Quorvan.Finders", "host.exe"), "Quorvan.Finders_host.exe.log");
    EXPECT_EQ(logFileName("Quorvan.Finders", ""), "Quorvan.Finders.log");
}

TEST_F(LogFileTest, LiesInTheFolderOfItsKind) {
    for (const int kind : {FolderKind::localAppData, FolderKind::commonAppData, FolderKind::personal, 3}) {
        LogFileOptions options;
        options.folderKind = kind;
        const LogFile file("Test.Kind", 2, options);
        EXPECT_EQ(file.path(), ownPath(makeMakerFolderPath(kind, "Logs"), "Test.Kind.log"));
        EXPECT_TRUE(QFile::exists(file.path())) << kind;
    }
}

TEST_F(LogFileTest, IsRotatedOneByteAboveTheLimit) {
    writeOfSize(limit + 1);
    { const LogFile file("Test", 1, {}); }
    EXPECT_EQ(QFileInfo(path(".bak")).size(), limit + 1);
    EXPECT_EQ(read(".bak").left(7), "old log");
    EXPECT_EQ(read(".ba2"), "(missing)");
    EXPECT_THAT(lines(), ElementsAre(created, pid(), destroyed));
}

TEST_F(LogFileTest, RotationMovesEveryBackupAndLosesTheOldest) {
    writeOfSize(limit + 1);
    for (const char* suffix : {".bak", ".ba2", ".ba3", ".ba4", ".ba5"}) {
        write(suffix, QByteArray("was ") + suffix);
    }
    { const LogFile file("Test", 2, {}); }
    EXPECT_THAT(lines(), ElementsAre(created, pid(), destroyed));
    EXPECT_EQ(QFileInfo(path(".bak")).size(), limit + 1);
    EXPECT_EQ(read(".ba2"), "was .bak");
    EXPECT_EQ(read(".ba3"), "was .ba2");
    EXPECT_EQ(read(".ba4"), "was .ba3");
    EXPECT_EQ(read(".ba5"), "was .ba4");
    EXPECT_EQ(QDir(pc.logFolder()).entryList({"Test.log*"}, QDir::Files).size(), 6);
}

TEST_F(LogFileTest, RotationLeavesAGapWhereABackupIsMissing) {
    writeOfSize(limit + 1);
    write(".ba2", "was .ba2");
    write(".ba5", "was .ba5");
    { const LogFile file("Test", 2, {}); }
    EXPECT_EQ(QFileInfo(path(".bak")).size(), limit + 1);
    EXPECT_EQ(read(".ba2"), "(missing)");
    EXPECT_EQ(read(".ba3"), "was .ba2");
    EXPECT_EQ(read(".ba4"), "(missing)");
    EXPECT_EQ(read(".ba5"), "(missing)");
}

TEST_F(LogFileTest, IsNotRotatedWhileItGrows) {
    LogFile file("Test", 2, {});
    ASSERT_TRUE(QFile::resize(path(), limit + 1));
    file.writeLine('A', "text");
    EXPECT_EQ(read(".bak"), "(missing)");
}

TEST_F(LogFileTest, RotationLosesNothingOfAFileThatAnotherLoggerHolds) {
    LogFile holder("Test", 2, {});
    ASSERT_TRUE(QFile::resize(path(), limit + 1));
    {
        LogFile second("Test", 2, {});
        second.writeLine('A', "second");
        holder.writeLine('A', "holder");
        const QByteArray both = read(".bak") + read();
        EXPECT_EQ(both.count("LOG CREATED"), 2);
        EXPECT_EQ(both.count("A: second\r\n"), 1);
        EXPECT_EQ(both.count("A: holder\r\n"), 1);
    }
    EXPECT_EQ((read(".bak") + read()).count("LOG DESTROYED"), 1);
}

TEST_F(LogFileTest, RotationLosesNothingOfAFileThatAnotherProcessHolds) {
    QProcess holder;
    holder.start(LURULUDRI_LOGHOLDER, QStringList());
    ASSERT_TRUE(holder.waitForReadyRead()) << holder.errorString().toStdString();
    ASSERT_TRUE(read().contains("A: from another process\r\n"));
    {
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::Append)); // a line of the size that rotates it
        ASSERT_EQ(file.write(QByteArray(limit, 'x') + "\r\n"), limit + 2);
    }
    { LogFile("Test", 2, {}).writeLine('A', "second"); }
    holder.closeWriteChannel();
    ASSERT_TRUE(holder.waitForFinished());
    const QByteArray both = read(".bak") + read();
    EXPECT_EQ(both.count("A: from another process\r\n"), 1);
    EXPECT_EQ(both.count(QByteArray(limit, 'x')), 1);
    EXPECT_EQ(both.count("A: second\r\n"), 1);
    EXPECT_EQ(both.count("LOG CREATED"), 2);
    EXPECT_EQ(both.count("LOG DESTROYED"), 2);
}

TEST_F(LogFileTest, UnicodeModeWritesUtf16AfterAByteOrderMark) {
    LogFileOptions options;
    options.encoding = LogFileOptions::Encoding::Unicode;
    for (int i = 0; i < 2; ++i) {
        LogFile("Test", 2, options).writeLine('A', "Käfer 競走");
    }
    const QByteArray bytes = read();
    const QString text(reinterpret_cast<const QChar*>(bytes.constData()), bytes.size() / 2);
    EXPECT_EQ(text.count(QChar(0xFEFF)), 1);
    EXPECT_TRUE(text.startsWith(QChar(0xFEFF)));
    EXPECT_EQ(text.count(" A: Käfer 競走\r\n"), 2);
    EXPECT_EQ(text.count("\r\n"), 8);
}

TEST_F(LogFileTest, UnicodeModeCanStartEmpty) {
    write("", "old");
    LogFileOptions options;
    options.encoding = LogFileOptions::Encoding::Unicode;
    options.truncate = true;
    { const LogFile file("Test", 2, options); }
    EXPECT_TRUE(read().startsWith("\xFF\xFE"));
    EXPECT_FALSE(read().contains("old"));
}

TEST_F(LogFileTest, AFileThatCannotBeOpenedReceivesLinesAsSoonAsItCan) {
    ASSERT_TRUE(QDir().mkpath(path()));
    {
        LogFile file("Test", 2, {});
        file.writeLine('A', "lost");
        ASSERT_TRUE(QDir().rmdir(path()));
        file.writeLine('A', "written");
        EXPECT_THAT(lines(), ElementsAre("A: written")) << "without the opening banner";
    }
    EXPECT_THAT(lines(), ElementsAre("A: written", destroyed));
}

TEST_F(LogFileTest, AFileThatWasNeverOpenedGetsNoClosingBanner) {
    ASSERT_TRUE(QDir().mkpath(path()));
    { const LogFile file("Test", 2, {}); }
    ASSERT_TRUE(QDir().rmdir(path()));
    EXPECT_EQ(read(), "(missing)");
}

} // namespace
