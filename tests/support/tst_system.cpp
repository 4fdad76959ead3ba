#include "support/Clock.h"
#include "support/FileVersion.h"
#include "support/HostExecutable.h"
#include "support/KnownFolders.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QCoreApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QThread>

#include <gtest/gtest.h>

#include <limits>

namespace {

TEST(KnownFolders, TheMakersFolderLiesBelowTheFolderOfItsKind) {
    const TestPc pc;
    for (const int kind : {FolderKind::localAppData, FolderKind::commonAppData, FolderKind::personal, 9}) {
        const QString path = makeMakerFolderPath(kind, "Logs");
        EXPECT_TRUE(path.endsWith(ownPath(ownPath("", "Veltrane"), "Logs"))) << path.toStdString();
        EXPECT_TRUE(QDir::isAbsolutePath(path)) << path.toStdString();
    }
    EXPECT_EQ(makeMakerFolderPath(FolderKind::localAppData, "Logs"), pc.logFolder());
    EXPECT_EQ(makeMakerFolderPath(9, "Logs"), pc.logFolder()) << "any other kind is the local one";
}

TEST(KnownFolders, AFolderThatTheShellDoesNotKnowIsEmpty) {
    const TestPc pc;
    EXPECT_EQ(knownFolderPath(0x7F), "");
}

TEST(HostExecutable, IsTheProgramThatRuns) {
    const TestPc pc;
    EXPECT_EQ(hostExecutablePath(), QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    EXPECT_EQ(hostExecutableFileName(), QCoreApplication::applicationFilePath().section('/', -1));
    EXPECT_TRUE(hostExecutableFileName().startsWith("tst_support"));
}

TEST(FileVersion, IsReadFromTheVersionResource) {
    const TestPc pc;
    const FileVersion version = readFileVersion(hostExecutablePath());
    EXPECT_EQ(version.major, 3);
    EXPECT_EQ(version.minor, 1);
    EXPECT_EQ(version.build, 4159);
    EXPECT_EQ(version.revision, 65535);
}

TEST(FileVersion, IsZeroWithoutAVersionResource) {
    TestPc pc;
    pc.file("C:\\Games\\no version.exe", "MZ");
    for (const char* path : {"C:\\Games\\no version.exe", "C:\\no such file.exe", ""}) {
        const FileVersion version = readFileVersion(path);
        EXPECT_EQ(version.major + version.minor + version.build + version.revision, 0) << path;
    }
}

TEST(Clock, GoesForwardInBothUnits) {
    QElapsedTimer timer;
    timer.start();
    const quint64 milliseconds = tickCountMs();
    const quint64 microseconds = tickCountUs();
    QThread::msleep(20);
    const quint64 laterMicroseconds = tickCountUs();
    const quint64 laterMilliseconds = tickCountMs();
    const auto upperBound = static_cast<quint64>(timer.elapsed()) + 2;

    EXPECT_GE(laterMilliseconds - milliseconds, 19U);
    EXPECT_LE(laterMilliseconds - milliseconds, upperBound);
    EXPECT_GE(laterMicroseconds - microseconds, 19'000U);
    EXPECT_LE(laterMicroseconds - microseconds, upperBound * 1'000);
}

TEST(Clock, ScalesWholeSecondsAndTheRestApart) {
    EXPECT_EQ(Clock::scaled(25'000'000, 10'000'000, 1'000), 2'500U);
    EXPECT_EQ(Clock::scaled(25'000'000, 10'000'000, 1'000'000), 2'500'000U);
    EXPECT_EQ(Clock::scaled(9, 10'000'000, 1'000'000), 0U);
    EXPECT_EQ(Clock::scaled(3'579'546, 3'579'545, 1'000'000), 1'000'000U);
}

TEST(Clock, ScalesALargeReadingWithoutOverflow) {
    // Ticks times a million would need 83 bits.
    constexpr quint64 ticks = std::numeric_limits<qint64>::max();
    EXPECT_EQ(Clock::scaled(ticks, 10'000'000, 1'000'000), ticks / 10);
    EXPECT_EQ(Clock::scaled(ticks, 10'000'000, 1'000), ticks / 10'000);
}

} // namespace
