#include "support/scripted/ScriptedLog.h"

#include "platform/Folders.h"

#include <QDir>

#include <gmock/gmock.h>

#include <cstring>
#include <future>
#include <thread>
#include <utility>

namespace {

using ::testing::ElementsAre;

constexpr qint64 limit = 10'485'760;

TEST_F(ScriptedLogTest, IsMadeInThisOrder) {
    const LogFile file("Test", 2, {});
    EXPECT_THAT(asked, ElementsAre("create " + folder, "size Test.log", "open Test.log at"));
}

TEST_F(ScriptedLogTest, IsOpenedInTheModeOfItsEncodingAndOfTruncate) {
    using Encoding = LogFileOptions::Encoding;
    const auto openedWith = [this](Encoding encoding, bool truncate) {
        asked.clear();
        LogFileOptions options;
        options.encoding = encoding;
        options.truncate = truncate;
        const LogFile file("Test", 2, options);
        return asked.last();
    };
    EXPECT_EQ(openedWith(Encoding::Plain, false), "open Test.log at");
    EXPECT_EQ(openedWith(Encoding::Plain, true), "open Test.log wt");
    EXPECT_EQ(openedWith(Encoding::Unicode, false), "open Test.log at, ccs=UNICODE");
    EXPECT_EQ(openedWith(Encoding::Unicode, true), "open Test.log wt, ccs=UNICODE");
    EXPECT_EQ(openedWith(static_cast<Encoding>(2), false), "open Test.log at") << "any other one is plain";
}

TEST_F(ScriptedLogTest, EachLineIsOnTheDiskWhenItIsWritten) {
    {
        LogFile file("Test", 2, {});
        ASSERT_EQ(streams.size(), 1U);
        EXPECT_EQ(streams[0]->lines().size(), 2) << "the banner and the process id";
        file.writeLine('E', "first");
        EXPECT_EQ(streams[0]->lines().last(), "E: first");
        file.writeLine('W', "second");
        EXPECT_EQ(streams[0]->lines().last(), "W: second");
    }
    EXPECT_EQ(streams[0]->lines().last(), destroyed);
    EXPECT_EQ(streams[0]->onDisk, streams[0]->given);
    EXPECT_TRUE(streams[0]->isClosed);
}

TEST_F(ScriptedLogTest, TheHostsVersionIsOnTheDiskWithTheBanner) {
    const LogFile file("Test", 2, options(LogFileOptions::BannerMode::BannersAndVersion));
    EXPECT_EQ(streams.at(0)->lines().last(), "A: EXE Version: 0.0.0.0");
}

TEST_F(ScriptedLogTest, AnUnknownBannerModeWritesNone) {
    { LogFile("Test", 2, options(static_cast<LogFileOptions::BannerMode>(3))).writeLine('A', "text"); }
    EXPECT_THAT(streams.at(0)->lines(), ElementsAre("A: text"));
}

TEST_F(ScriptedLogTest, RotatesFromTheOldestOn) {
    size = limit + 1;
    const LogFile file("Test", 2, {});
    EXPECT_THAT(asked, ElementsAre("create " + folder, "size Test.log", //
                                   "lock", "size Test.log",             //
                                   "delete Test.log.ba5",               //
                                   "move Test.log.ba4 to Test.log.ba5", //
                                   "move Test.log.ba3 to Test.log.ba4", //
                                   "move Test.log.ba2 to Test.log.ba3", //
                                   "move Test.log.bak to Test.log.ba2", //
                                   "move Test.log to Test.log.bak",     //
                                   "unlock", "open Test.log at"));
}

TEST_F(ScriptedLogTest, IsNotRotatedAgainWhenAnotherProcessHasJustDoneIt) {
    size = limit + 1;
    system.lockFolder = [this](const QString&) {
        size = 58; // what the other one has written to its new file
        return std::make_unique<NotingLock>(asked);
    };
    const LogFile file("Test", 2, {});
    EXPECT_THAT(asked, ElementsAre("create " + folder, "size Test.log", "size Test.log", "unlock", "open Test.log at"));
}

TEST_F(ScriptedLogTest, IsRotatedAlsoWhenTheLockCannotBeHad) {
    size = limit + 1;
    system.lockFolder = [](const QString&) { return nullptr; };
    const LogFile file("Test", 2, {});
    EXPECT_EQ(asked.filter("move ").size(), 5);
}

// A move that fails stops no other one. A file is then replaced by the next newer one, or it stays where it is.
TEST_F(ScriptedLogTest, EachStepOfARotationMayFail) {
    const std::vector<std::pair<QString, QStringList>> filesAfter{
        {"", {"", "log", "bak", "ba2", "ba3", "ba4"}},
        {"delete Test.log.ba5", {"", "log", "bak", "ba2", "ba3", "ba4"}},
        {"move Test.log.ba4 to Test.log.ba5", {"", "log", "bak", "ba2", "ba3", ""}},
        {"move Test.log.ba3 to Test.log.ba4", {"", "log", "bak", "ba2", "", "ba4"}},
        {"move Test.log.ba2 to Test.log.ba3", {"", "log", "bak", "", "ba3", "ba4"}},
        {"move Test.log.bak to Test.log.ba2", {"", "log", "", "ba2", "ba3", "ba4"}},
        {"move Test.log to Test.log.bak", {"log", "", "bak", "ba2", "ba3", "ba4"}}};
    const QStringList names{"Test.log", "Test.log.bak", "Test.log.ba2", "Test.log.ba3", "Test.log.ba4", "Test.log.ba5"};
    for (const auto& [failing, expected] : filesAfter) {
        QStringList files{"log", "bak", "ba2", "ba3", "ba4", "ba5"};
        const QString step = failing;
        const auto take = [&](const QString& from) { return std::exchange(files[names.indexOf(named(from))], ""); };
        size = limit + 1;
        system.deleteFile = [&](const QString& path) {
            return step == "delete " + named(path) ? false : !take(path).isNull();
        };
        system.moveFile = [&](const QString& from, const QString& to) {
            if (step == "move " + named(from) + " to " + named(to)) {
                return false;
            }
            files[names.indexOf(named(to))] = take(from);
            return true;
        };
        LogFile file("Test", 2, {});
        file.writeLine('A', "text");
        EXPECT_EQ(files, expected) << step.toStdString();
        EXPECT_THAT(streams.back()->lines(), ElementsAre(created, ::testing::_, "A: text")) << step.toStdString();
    }
}

TEST_F(ScriptedLogTest, AFileThatCannotBeMovedIsAddedTo) {
    size = limit + 1;
    canMove = false;
    LogFile file("Test", 2, {});
    EXPECT_EQ(asked.filter("move ").size(), 5) << "a move that failed stops no other one";
    EXPECT_EQ(asked.last(), "open Test.log at");
    file.writeLine('A', "text");
    EXPECT_EQ(streams.at(0)->lines().last(), "A: text");
}

TEST_F(ScriptedLogTest, IsNotRotatedAtTheLimitNorWithoutAFile) {
    for (const qint64 atMost : {limit, qint64(0), qint64(-1)}) {
        asked.clear();
        size = atMost;
        const LogFile file("Test", 2, {});
        EXPECT_THAT(asked, ElementsAre("create " + folder, "size Test.log", "open Test.log at")) << atMost;
    }
}

TEST_F(ScriptedLogTest, AtLevelZeroOrBelowItsSizeIsNotAskedFor) {
    size = limit + 1;
    for (const qint32 level : {0, -1}) {
        asked.clear();
        const LogFile file("Test", level, {});
        EXPECT_THAT(asked, ElementsAre("create " + folder, "open Test.log at")) << level;
    }
}

TEST_F(ScriptedLogTest, WithTruncateItsSizeIsNotAskedFor) {
    size = limit + 1;
    LogFileOptions options;
    options.truncate = true;
    const LogFile file("Test", 2, options);
    EXPECT_THAT(asked, ElementsAre("create " + folder, "open Test.log wt"));
}

TEST_F(ScriptedLogTest, AtLevelZeroWithoutBannersItsFirstLineOpensItInItsMode) {
    LogFileOptions options;
    options.truncate = true;
    options.encoding = LogFileOptions::Encoding::Unicode;
    options.bannerMode = LogFileOptions::BannerMode::None;
    LogFile file("Test", 0, options);
    EXPECT_THAT(asked, ElementsAre("create " + folder));
    file.writeLine('A', "text");
    file.writeLine('A', "more");
    EXPECT_THAT(asked, ElementsAre("create " + folder, "open Test.log wt, ccs=UNICODE"));
}

TEST_F(ScriptedLogTest, EveryLineTriesAFileThatCannotBeOpenedOnceMore) {
    canOpen = false;
    LogFile file("Test", 2, {});
    EXPECT_EQ(asked.filter("open ").size(), 2) << "by itself, and for the banner";
    file.writeLine('A', "lost");
    EXPECT_EQ(asked.filter("open ").size(), 3);
    canOpen = true;
    file.writeLine('A', "written");
    file.writeLine('A', "more");
    EXPECT_EQ(asked.filter("open ").size(), 4);
    EXPECT_EQ(asked.last(), "open Test.log at");
    EXPECT_THAT(streams.at(0)->lines(), ElementsAre("A: written", "A: more"));
}

TEST_F(ScriptedLogTest, AFileThatOpensForItsBannerHasOne) {
    system.openShared = [this](const QString& path, const char* mode) {
        told("open " + named(path) + ' ' + mode);
        return asked.filter("open ").size() == 2 ? stream() : nullptr;
    };
    const LogFile file("Test", 2, {});
    EXPECT_EQ(streams.at(0)->lines().first(), created);
}

TEST_F(ScriptedLogTest, WithoutALocalFolderItLiesAtTheRootOfTheDrive) {
    system.ownFolderPath = [](int csidl, char16_t* buffer) {
        EXPECT_EQ(csidl, Platform::csidlLocalAppData);
        std::memcpy(buffer, u"C:\\No", sizeof u"C:\\No"); // of no account, as the call fails
        return -1;
    };
    const QChar separator = QDir::separator();
    const QString expected = separator + QString("Veltrane") + separator + "Logs";
    QString opened;
    asked.clear();
    system.fileSize = [](const QString&) { return -1; };
    system.openShared = [&](const QString& path, const char*) {
        opened = path;
        return stream();
    };
    const LogFile file("Test", 2, {});
    EXPECT_THAT(asked, ElementsAre("create " + expected));
    EXPECT_EQ(opened, expected + separator + "Test.log");
}

// The second thread is about to open the file when the first one has opened it and is writing.
TEST_F(ScriptedLogTest, TheThreadThatOpensAFileSecondLeavesTheFirstOnesStreamAlone) {
    LogFileOptions options;
    options.bannerMode = LogFileOptions::BannerMode::None;
    canOpen = false;
    LogFile file("Test", 2, options);
    canOpen = true;

    const std::thread::id mainThread = std::this_thread::get_id();
    std::promise<void> secondIsOpening;
    std::promise<void> firstIsWriting;
    std::promise<void> secondHasWritten;
    bool isFirstPiece = true;
    const auto letTheOtherWrite = [&] {
        if (std::exchange(isFirstPiece, false)) {
            firstIsWriting.set_value();
            secondHasWritten.get_future().wait();
            EXPECT_FALSE(streams.at(0)->isClosed) << "while a thread writes to it";
        }
    };
    system.openShared = [&](const QString&, const char*) {
        if (std::this_thread::get_id() != mainThread) {
            secondIsOpening.set_value();
            firstIsWriting.get_future().wait();
            return stream();
        }
        auto opened = stream();
        streams.back()->whileWriting = letTheOtherWrite;
        return opened;
    };
    std::thread second([&] {
        file.writeLine('A', "second");
        secondHasWritten.set_value();
    });
    secondIsOpening.get_future().wait();
    file.writeLine('A', "first");
    second.join();

    ASSERT_EQ(streams.size(), 2U);
    EXPECT_FALSE(streams.at(0)->isClosed);
    EXPECT_TRUE(streams.at(0)->onDisk.endsWith("A: second\nfirst\n")) << "between the pieces of the first one's line";
    EXPECT_TRUE(streams.at(1)->isClosed);
    EXPECT_EQ(streams.at(1)->given, "");
}

} // namespace
