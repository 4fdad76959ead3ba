#include "support/FileVersion.h"
#include "support/HostExecutable.h"
#include "support/KnownFolders.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>

#include <gtest/gtest.h>

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

} // namespace
