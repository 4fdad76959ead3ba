#include "recordings/Recording.h"

#include "common/QtPrinters.h"
#include "recordings/HostFiles.h"
#include "recordings/OddPc.h"
#include "recordings/PcFile.h"

#include <gmock/gmock.h>

#include <QElapsedTimer>
#include <QTemporaryDir>

namespace {

using namespace Recordings;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class RecordingTest : public ::testing::Test {
protected:
    QByteArray path(const QByteArray& name) const { return m_folder.path().toUtf8() + '/' + name; }

    QString fault(const QByteArray& name) const { return readRecording(path(name)).fault; }

    void write(const QByteArray& name, const QByteArray& contents) const {
        ASSERT_TRUE(HostFiles::write(path(name), contents));
    }

private:
    QTemporaryDir m_folder;
};

TEST_F(RecordingTest, AFolderThatWasWrittenIsReadAsItWas) {
    const Pc pc = OddPc::make(true);
    QStringList leftOut;
    ASSERT_EQ(writeRecordingFolder(pc, path("pc"), leftOut), "");
    EXPECT_EQ(leftOut, QStringList());
    const Recording recording = readRecording(path("pc"));
    EXPECT_EQ(recording.fault, "");
    EXPECT_THAT(recording.problems, IsEmpty());
    EXPECT_TRUE(recording.pc == pc);
}

TEST_F(RecordingTest, AFileThatWasWrittenIsReadAsItWas) {
    const Pc pc = OddPc::make(false);
    write("käfer.json", renderPcFile(pc));
    const Recording recording = readRecording(path("käfer.json"));
    EXPECT_EQ(recording.fault, "");
    EXPECT_TRUE(recording.pc == pc);
}

TEST_F(RecordingTest, WhatIsNoneIsRefused) {
    EXPECT_EQ(fault("none"), "no such file or folder");
    HostFiles::makeFolder(path("empty"));
    EXPECT_EQ(fault("empty"), "no recorded PC here");
    write("games.json", "{\"games\": []}");
    EXPECT_EQ(fault("games.json"), "no recorded PC here");
    write("x.zip", "PK\3\4");
    EXPECT_EQ(fault("x.zip"), "no recorded PC here");
    const QByteArray cut = renderPcFile(OddPc::make(false)).left(500);
    write("cut.json", cut);
    EXPECT_EQ(readRecording(path("cut.json")).faultLine, cut.count('\n') + 1);
    EXPECT_NE(fault("cut.json"), "");
}

TEST_F(RecordingTest, OneThatLiesALevelDeeperIsSeen) {
    write("nest/my-pc/pc.json", "{}");
    write("nest/other/x.txt", "");
    write("nest/sent.json", renderPcFile(Pc()));
    write("nest/games.json", "{}");
    EXPECT_EQ(fault("nest"), "no recorded PC here");
    EXPECT_THAT(recordingsIn(path("nest")), ElementsAre("my-pc", "sent.json"));
}

TEST_F(RecordingTest, AHundredThousandFilesAreReadInLessThanASecond) {
    Pc pc;
    for (int folder = 0; folder < 1000; ++folder) {
        for (int file = 0; file < 100; ++file) {
            const QString name = QString("C:/Program Files/Game %1/bin/win64/Module %2.dll").arg(folder).arg(file);
            pc.drives.make(*DrivePath::parse(name), File::Kind::File);
        }
    }
    write("big.json", renderPcFile(pc));
    QElapsedTimer clock;
    clock.start();
    const Recording recording = readRecording(path("big.json"));
    const qint64 time = clock.elapsed();
    EXPECT_TRUE(recording.pc == pc);
    RecordProperty("milliseconds", static_cast<int>(time));
    std::printf("read in %d ms, %d bytes\n", static_cast<int>(time), renderPcFile(pc).size());
}

} // namespace
