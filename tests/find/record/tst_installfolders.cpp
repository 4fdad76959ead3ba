#include "TestTrace.h"

#include "find/record/InstallFolders.h"
#include "find/record/Probe.h"
#include "find/terminal/Progress.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

namespace {

using Find::GeneralFolders;

QProcessEnvironment environmentOf(std::initializer_list<std::pair<const char*, const char*>> variables) {
    QProcessEnvironment environment;
    for (const auto& [name, value] : variables) {
        environment.insert(name, value);
    }
    return environment;
}

bool isGeneral(const GeneralFolders& folders, const QString& path) {
    return folders.contains(*Recordings::DrivePath::parse(path));
}

TEST(GeneralFolders, AreThoseOfEveryWindows) {
    const GeneralFolders folders{QProcessEnvironment()};
    for (const char* const path :
         {"C:\\", "D:\\", "C:\\Windows", "c:\\windows\\system32\\x", "C:\\Program Files", "D:\\program files (x86)",
          "C:\\Program Files\\Common Files", "C:\\ProgramData", "C:\\Users", "C:\\Users\\anna",
          "C:\\Users\\anna\\AppData\\Local", "C:\\Users\\anna\\AppData\\Local\\Temp", "C:\\Users\\anna\\Downloads"}) {
        EXPECT_TRUE(isGeneral(folders, path)) << path;
    }
    for (const char* const path :
         {"C:\\Games", "C:\\Program Files\\Game", "C:\\Windows Games", "C:\\Users\\anna\\Games", "D:\\X\\Windows",
          "C:\\Users\\anna\\AppData\\Local\\Programs\\Game", "C:\\ProgramData\\Game"}) {
        EXPECT_FALSE(isGeneral(folders, path)) << path;
    }
}

TEST(GeneralFolders, AreThoseThatTheEnvironmentNames) {
    const GeneralFolders folders(environmentOf(
        {{"SystemRoot", "D:\\WinNT"}, {"ProgramFiles", "D:\\Programme"}, {"USERPROFILE", "E:\\Profile\\anna"}}));
    for (const char* const path : {"D:\\WINNT", "D:\\WinNT\\Temp", "D:\\Programme", "E:\\Profile", "E:\\Profile\\bert",
                                   "E:\\profile\\anna\\Desktop"}) {
        EXPECT_TRUE(isGeneral(folders, path)) << path;
    }
    EXPECT_FALSE(isGeneral(folders, "D:\\Programme\\Game"));
    EXPECT_FALSE(isGeneral(folders, "E:\\Profile\\anna\\Game"));
}

TEST(GeneralFolders, AProfileInADrivesRootStandsForItselfOnly) {
    const GeneralFolders folders(environmentOf({{"USERPROFILE", "E:\\anna"}}));
    EXPECT_TRUE(isGeneral(folders, "E:\\anna"));
    EXPECT_FALSE(isGeneral(folders, "E:\\Games"));
}

TEST(GeneralFolders, AreThoseThatAreAdded) {
    GeneralFolders folders{QProcessEnvironment()};
    folders.add("D:/Here/below");
    folders.add("/home/anna");
    EXPECT_TRUE(isGeneral(folders, "D:\\here\\BELOW"));
    EXPECT_FALSE(isGeneral(folders, "D:\\Here"));
    EXPECT_FALSE(isGeneral(folders, "D:\\Here\\below\\Game"));
}

class InstallFoldersTest : public ::testing::Test {
protected:
    void probe(const QString& folder) { folders.add(TestTrace::exists(folder + '\\' + Find::probeName(), false)); }

    QStringList executables() {
        Recordings::Drives drives;
        Find::Progress progress(
            "testing", 0, [] { return qint64{0}; }, [](const QString&) {});
        folders.listExecutables(GeneralFolders(QProcessEnvironment()), drives, progress);
        QStringList files;
        drives.visit([&files](const Recordings::DrivePath& path, const Recordings::File& file) {
            if (!file.isFolder()) {
                files.append(path.text());
            }
        });
        files.sort(Qt::CaseInsensitive);
        return files;
    }

    TestPc pc;
    Find::InstallFolders folders;
};

TEST_F(InstallFoldersTest, GiveTheExecutablesBelowThem) {
    pc.file("E:\\G\\x.exe");
    pc.file("E:\\G\\bin\\Y.EXE");
    pc.file("E:\\G\\bin\\deep\\z.Bat");
    pc.file("E:\\G\\old.com");
    pc.file("E:\\G\\run.cmd");
    pc.file("E:\\G\\save.dat");
    pc.file("E:\\G\\exe");
    pc.folder("E:\\G\\folder.exe");
    pc.file("E:\\other\\x.exe");
    probe("E:\\G");
    EXPECT_EQ(executables(),
              (QStringList{"E:/G/bin/deep/z.Bat", "E:/G/bin/Y.EXE", "E:/G/old.com", "E:/G/run.cmd", "E:/G/x.exe"}));
}

TEST_F(InstallFoldersTest, AreThoseOfExecutablesThatWereFound) {
    pc.file("E:\\G\\bin\\x.exe");
    pc.file("E:\\G\\bin\\y.exe");
    pc.file("E:\\G\\z.exe");
    pc.file("E:\\H\\h.exe");
    folders.add(TestTrace::exists("E:/G/bin/x.exe", true));
    folders.add(TestTrace::exists("E:\\H\\missing.exe", false));
    folders.add(TestTrace::exists("E:\\H", true));
    EXPECT_EQ(executables(), (QStringList{"E:/G/bin/x.exe", "E:/G/bin/y.exe"}));
}

TEST_F(InstallFoldersTest, GeneralOnesGiveTheirOwnExecutablesOnly) {
    pc.file("E:\\ProgramData\\setup.exe");
    pc.file("E:\\ProgramData\\Secret\\tool.exe");
    pc.file("E:\\ProgramData\\Game\\game.exe");
    probe("E:\\ProgramData");
    probe("E:\\ProgramData\\Game");
    EXPECT_EQ(executables(), (QStringList{"E:/ProgramData/Game/game.exe", "E:/ProgramData/setup.exe"}));
}

TEST_F(InstallFoldersTest, LinksAreNotFollowed) {
    pc.file("E:\\G\\x.exe");
    pc.file("E:\\far\\away.exe");
    pc.link("E:\\G\\back", "E:\\G");
    probe("E:\\G");
    EXPECT_EQ(executables(), QStringList{"E:/G/x.exe"});
}

TEST_F(InstallFoldersTest, NetworkFoldersAreTold) {
    probe("\\\\server\\share\\Game");
    probe("Games");
    EXPECT_EQ(executables(), QStringList());
    EXPECT_EQ(folders.networkFolders(), QStringList{"\\\\server\\share\\Game"});
}

} // namespace
