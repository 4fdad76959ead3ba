#include "platform/Listing.h"
#include "support/Files.h"
#include "support/Paths.h"

#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

namespace {

using ::testing::IsEmpty;

/// A folder of whoever replays a PC, with a file in it; the current folder, too.
class OutsideTheRecording : public ::testing::Test {
protected:
    OutsideTheRecording() {
        QFile file(own.filePath("game.exe"));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write("own") == 3);
        QDir::setCurrent(own.path());
        pc.folder("drives/C");
        pc.choose();
    }

    ~OutsideTheRecording() override { QDir::setCurrent(before); }

    const QString before = QDir::currentPath();
    const QTemporaryDir own;
    RecordingFolder pc;
};

TEST_F(OutsideTheRecording, NoFileIsThere) {
    const QString name = QDir(own.path()).dirName();
    for (const QString& path :
         {QString("game.exe"), QString("./game.exe"), QString(".\\game.exe"), "../" + name + "/game.exe",
          own.filePath("game.exe"), '/' + own.filePath("game.exe"), "file://" + own.filePath("game.exe"),
          ':' + own.filePath("game.exe"), "\\\\?" + own.filePath("game.exe"), "Z:" + own.filePath("game.exe")}) {
        EXPECT_FALSE(Files::exists(path)) << path.toStdString();
        EXPECT_EQ(Files::readWholeFile(path), "") << path.toStdString();
    }
    EXPECT_EQ(Files::shortcutTarget(own.filePath("game.exe")), "");
}

TEST_F(OutsideTheRecording, NoFolderIsThere) {
    Platform::FolderEntry entry;
    Platform::FileIdentity identity;
    for (const QString& path : {QString(), QString("."), QString(".."), QString("../"), own.path(), '/' + own.path(),
                                QDir::homePath(), QString("/tmp"), QString(":/")}) {
        EXPECT_FALSE(Files::folderExists(path)) << path.toStdString();
        EXPECT_THAT(Files::names(path, "*"), IsEmpty()) << path.toStdString();
        QString folder = "C:\\";
        EXPECT_FALSE(Files::enter(folder, path) && folder != "C:\\") << path.toStdString();
        EXPECT_FALSE(Platform::firstEntry(path, entry)) << path.toStdString();
        EXPECT_FALSE(Platform::fileIdentity(path, identity)) << path.toStdString();
    }
}

TEST_F(OutsideTheRecording, APathWithoutADriveIsOnTheHostsOrElseOnC) {
    EXPECT_EQ(Paths::absoluteFolderOf("/Games/x.exe"), "C:/Games");
    EXPECT_EQ(Paths::absoluteFolderOf("\\x\\..\\y\\"), "C:/y");
    pc.file("drives/D/Games/x.exe", "abc");
    pc.file("drives/C/Games/x.exe", "wrong");
    pc.describe(R"({"host": {"executable": "d:\\Host\\host.exe", "version": "1.0.0.0"}})");
    pc.choose();
    EXPECT_EQ(Files::readWholeFile("\\Games\\x.exe"), "abc");
    EXPECT_EQ(Paths::absoluteFolderOf("/Games/x.exe"), "D:/Games");
    Platform::FolderEntry entry;
    EXPECT_TRUE(Platform::firstEntry("\\Games", entry));
}

TEST_F(OutsideTheRecording, NobodyKnowsTheCurrentFolder) {
    EXPECT_EQ(Paths::absoluteFolder(""), "//<current folder>");
    EXPECT_EQ(Paths::absoluteFolderOf("x.exe"), "//<current folder>");
    EXPECT_EQ(Paths::absoluteFolderOf("sub\\x.exe"), "//<current folder>/sub");
    EXPECT_EQ(Paths::absoluteFolder("..\\..\\Games"), "//<current folder>/../../Games") << "nor what is above it";
    pc.file("drives/C/Games/x.exe");
    EXPECT_FALSE(Files::exists("..\\Games\\x.exe"));
    EXPECT_FALSE(Files::exists(Paths::absoluteFolder("..\\Games") + "\\x.exe"));
}

TEST_F(OutsideTheRecording, TheProgramItselfReadsItsOwnFiles) {
    QFile file(own.filePath("game.exe"));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "own");
    EXPECT_TRUE(QFile::exists("game.exe"));
}

TEST(WithoutARecording, FilesAreTheSystemsOwn) {
    const QTemporaryDir own;
    QFile file(own.filePath("game.exe"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write("own") == 3 && file.flush());
    EXPECT_EQ(Files::readWholeFile(own.filePath("game.exe")), "own");
    EXPECT_TRUE(Files::folderExists(own.path()));
    QString folder = "/";
    EXPECT_TRUE(Files::enter(folder, own.path().mid(1)));
    EXPECT_EQ(folder, own.path());
}

} // namespace
