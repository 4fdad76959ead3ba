#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"
#include "platform/Folders.h"
#include "platform/Process.h"
#include "platform/Registry.h"
#include "platform/Versions.h"
#include "platform/recorded/Observer.h"
#include "recordings/PcFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <gmock/gmock.h>

#include <array>
#include <cstring>
#include <thread>

namespace {

using Platform::RootKey;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

using Buffer = std::array<char16_t, Platform::maxPath>;

bool hasKey(const QString& path) {
    Platform::KeyHandle key;
    return Platform::openKey(RootKey::CurrentUser, path, Platform::keyRead, key) == Platform::errorSuccess;
}

/// A folder of the shell, or "(failed)".
QString folder(int csidl) {
    Buffer buffer{};
    return Platform::folderPath(csidl, buffer.data()) == 0 ? QString::fromUtf16(buffer.data()) : QString("(failed)");
}

QString volume(const QString& mountPoint) {
    Buffer buffer{};
    return Platform::volumeName(mountPoint, buffer.data()) ? QString::fromUtf16(buffer.data()) : QString("(failed)");
}

class RecordedPcTest : public ::testing::Test {
protected:
    RecordingFolder pc;
};

// Choosing

TEST_F(RecordedPcTest, IsEmptyUntilOneIsChosen) {
    pc.registry("[HKEY_CURRENT_USER\\A]\r\n");
    EXPECT_FALSE(hasKey("A"));
    pc.choose();
    EXPECT_TRUE(hasKey("A"));
    qunsetenv(Recordings::environmentVariable);
    EXPECT_FALSE(hasKey("A"));
}

TEST_F(RecordedPcTest, FollowsTheVariable) {
    pc.registry("[HKEY_CURRENT_USER\\A]\r\n");
    pc.choose();
    RecordingFolder other;
    other.registry("[HKEY_CURRENT_USER\\B]\r\n");
    qputenv(Recordings::environmentVariable, other.path({}));
    EXPECT_TRUE(hasKey("B"));
    EXPECT_FALSE(hasKey("A"));
}

TEST_F(RecordedPcTest, IsReadOnce) {
    pc.choose();
    pc.registry("[HKEY_CURRENT_USER\\A]\r\n");
    EXPECT_FALSE(hasKey("A"));
    Recorded::forgetPc();
    EXPECT_TRUE(hasKey("A"));
}

TEST_F(RecordedPcTest, CanBeAskedByManyThreads) {
    pc.registry("[HKEY_CURRENT_USER\\A\\1]\r\n[HKEY_CURRENT_USER\\A\\2]\r\n");
    qputenv(Recordings::environmentVariable, pc.path({}));
    Recorded::forgetPc();
    Platform::KeyHandle key;
    ASSERT_EQ(Platform::openKey(RootKey::CurrentUser, "A", Platform::keyRead, key), 0U);
    std::vector<std::thread> threads;
    std::array<int, 4> found{};
    for (int& count : found) {
        threads.emplace_back([&count, &key] {
            for (int i = 0; i < 200; ++i) {
                Buffer name{};
                auto length = static_cast<quint32>(name.size());
                const bool isListed = Platform::enumKey(key, 1, name.data(), length) == 0;
                count += isListed && hasKey("A\\1") && !QFile::exists("C:/none") ? 1 : 0;
            }
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_THAT(found, ElementsAre(200, 200, 200, 200));
}

TEST_F(RecordedPcTest, TellsWhatTheRegistryIsAsked) {
    pc.registry("[HKEY_LOCAL_MACHINE\\Software\\Wow6432Node\\X]\r\n");
    pc.choose();
    std::vector<QString> asked;
    Recorded::setObserver([&asked](const QString& question) { asked.push_back(question); });
    Platform::KeyHandle key;
    Platform::openKey(RootKey::LocalMachine, "Software\\X", Platform::keyRead | Platform::keyWow64_32Key, key);
    quint32 type = 0;
    quint32 size = 0;
    Platform::queryValue(key, "name", type, nullptr, size);
    Recorded::setObserver({});
    hasKey("unobserved");
    EXPECT_THAT(asked, ElementsAre("key HKLM32\\Software\\X", "value name"));
}

// Problems

std::vector<QString> problems(const QByteArray& path) {
    std::vector<QString> texts;
    const Recordings::Recording recording = Recordings::readRecording(path);
    if (!recording.fault.isEmpty()) {
        return {recording.fault};
    }
    for (const Recordings::Problem& problem : recording.problems) {
        texts.push_back(QString("%1:%2: %3").arg(problem.file.mid(path.size())).arg(problem.line).arg(problem.message));
    }
    return texts;
}

TEST_F(RecordedPcTest, HasNoProblemsWhenItIsComplete) {
    pc.registry("[HKEY_CURRENT_USER\\A]\r\n");
    pc.describe("{}");
    EXPECT_THAT(problems(pc.path({})), IsEmpty());
}

TEST_F(RecordedPcTest, MayLackEverything) {
    EXPECT_THAT(problems(pc.path({})), IsEmpty());
}

TEST_F(RecordedPcTest, ReportsAFolderThatIsNotThere) {
    EXPECT_THAT(problems(pc.path("none")), ElementsAre("no such file or folder"));
    qputenv(Recordings::environmentVariable, pc.path("none"));
    EXPECT_FALSE(hasKey("A"));
    EXPECT_FALSE(QFile::exists("C:/"));
}

TEST_F(RecordedPcTest, ReportsProblemsInTheOrderOfItsFiles) {
    pc.file("registry/b.reg", "");
    pc.file("registry/a.reg", "Windows Registry Editor Version 5.00\nx\ny\n");
    pc.folder("registry/c.reg");
    pc.describe("5");
    EXPECT_THAT(problems(pc.path({})),
                ElementsAre("/registry/a.reg:2: the line is neither a key nor a value",
                            "/registry/a.reg:3: the line is neither a key nor a value",
                            "/registry/b.reg:1: the first line is not \"Windows Registry Editor Version 5.00\"",
                            "/registry/c.reg:0: the file cannot be read", "/pc.json:1: an object is expected"));
}

TEST_F(RecordedPcTest, ReportsNamesThatWindowsCannotHave) {
    for (const char* const name : {"a:b", "con", "Same", "same", "\xE4", "Käfer"}) {
        pc.file(QByteArray("drives/D/") + name);
    }
    pc.folder("drives/CD");
    pc.link("drives/D/dead", "nowhere");
    EXPECT_THAT(problems(pc.path({})), ElementsAre("/drives/CD:0: this is no drive's letter",
                                                   "/drives/D/a:b:0: no file of Windows can have this name",
                                                   "/drives/D/con:0: no file of Windows can have this name",
                                                   "/drives/D/\uFFFD:0: the name is not UTF-8",
                                                   "/drives/D/same:0: for Windows this is the same name as \"Same\"",
                                                   "/drives/D/dead:0: the link leads to no file or folder"));
}

TEST_F(RecordedPcTest, IsAFileAsWellAsAFolder) {
    Recordings::Pc recorded;
    recorded.drives.make(*Recordings::DrivePath::parse("D:/b.txt"), Recordings::File::Kind::File).contents =
        QByteArray("text");
    recorded.drives.make(*Recordings::DrivePath::parse("D:/a"), Recordings::File::Kind::Folder).isHidden = true;
    recorded.registry.make(Recordings::RegKey::Root::CurrentUser, {"A"}, Recordings::RegistryView::Bits64);
    pc.file("one.json", Recordings::renderPcFile(recorded));
    qputenv(Recordings::environmentVariable, pc.path("one.json"));
    EXPECT_TRUE(hasKey("A"));
    QFile file("d:\\B.TXT");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "text");
    EXPECT_TRUE(QFileInfo("D:/a").isDir() && QFileInfo("D:/a").isHidden());
    QDir folder("D:/");
    folder.setSorting(QDir::Unsorted);
    EXPECT_THAT(folder.entryList(QDir::AllEntries | QDir::Hidden), ElementsAre("b.txt", "a"))
        << "in the recorded order";
}

// Folders, volumes, environment, host

TEST_F(RecordedPcTest, TellsTheShellsFolders) {
    pc.describe(R"({"shellFolders": {"startMenu": "C:\\Menu", "personal": ")" + QByteArray(259, 'x') +
                R"(", "commonStartMenu": ")" + QByteArray(260, 'x') + R"("}})");
    pc.choose();
    EXPECT_EQ(folder(Platform::csidlStartMenu), "C:\\Menu");
    EXPECT_EQ(folder(Platform::csidlPersonal).size(), 259);
    EXPECT_EQ(folder(Platform::csidlCommonStartMenu), "(failed)");
    EXPECT_EQ(folder(Platform::csidlCommonAppData), "(failed)");
    EXPECT_EQ(folder(12345), "(failed)");
}

TEST_F(RecordedPcTest, HasNoShellFoldersWhenNoneIsChosen) {
    EXPECT_EQ(folder(Platform::csidlStartMenu), "(failed)");
}

TEST_F(RecordedPcTest, KeepsOwnFilesInTheUsersFolder) {
    Buffer buffer{};
    pc.choose();
    ASSERT_GE(Platform::ownFolderPath(Platform::csidlLocalAppData, buffer.data()), 0);
    EXPECT_EQ(QString::fromUtf16(buffer.data()), QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

TEST_F(RecordedPcTest, TellsVolumeNames) {
    pc.describe(R"({"volumes": {"d": "\\\\?\\Volume{1}\\"}})");
    pc.choose();
    EXPECT_EQ(volume("D:\\"), "\\\\?\\Volume{1}\\");
    EXPECT_EQ(volume("d:\\"), "\\\\?\\Volume{1}\\");
    EXPECT_EQ(volume("D:"), "(failed)");
    EXPECT_EQ(volume("D:\\Games\\"), "(failed)");
    EXPECT_EQ(volume("C:\\"), "(failed)");
}

TEST_F(RecordedPcTest, HasItsOwnEnvironment) {
    qputenv("RECORDED_PC_TEST", "real");
    EXPECT_EQ(Platform::systemEnvironment().value("RECORDED_PC_TEST"), "real");
    pc.describe(R"({"environment": {"A": "1"}})");
    pc.choose();
    EXPECT_THAT(Platform::systemEnvironment().keys(), ElementsAre("A"));
    qunsetenv("RECORDED_PC_TEST");
}

TEST_F(RecordedPcTest, NamesTheHost) {
    Buffer buffer{};
    EXPECT_GT(Platform::moduleFileName(buffer.data(), Platform::maxPath), 0U);
    EXPECT_TRUE(QFile::exists(QString::fromUtf16(buffer.data())));
    pc.describe(R"({"host": {"executable": "C:\\host.exe"}})");
    pc.choose();
    EXPECT_EQ(Platform::moduleFileName(buffer.data(), Platform::maxPath), 11U);
    EXPECT_EQ(QString::fromUtf16(buffer.data()), "C:\\host.exe");
    EXPECT_EQ(Platform::moduleFileName(buffer.data(), 12), 11U);
    EXPECT_EQ(Platform::moduleFileName(buffer.data(), 11), 11U) << "the size of the buffer: the path was cut";
    EXPECT_EQ(QString::fromUtf16(buffer.data()), "C:\\host.ex");
    EXPECT_EQ(Platform::moduleFileName(buffer.data(), 0), 0U);
}

TEST_F(RecordedPcTest, TellsTheHostsVersion) {
    pc.describe(R"({"host": {"executable": "C:\\Host\\host.exe", "version": "1.2.3.4"}})");
    pc.choose();
    EXPECT_EQ(Platform::fileVersionInfoSize("C:\\other.exe"), 0U);
    ASSERT_EQ(Platform::fileVersionInfoSize("c:/host/HOST.exe"), 52U);
    std::array<quint32, 13> block{};
    EXPECT_FALSE(Platform::fileVersionInfo("C:\\Host\\host.exe", 51, block.data()));
    ASSERT_TRUE(Platform::fileVersionInfo("C:\\Host\\host.exe", 52, block.data()));
    const void* record = nullptr;
    quint32 length = 0;
    ASSERT_TRUE(Platform::versionRootBlock(block.data(), record, length));
    EXPECT_EQ(length, 52U);
    std::array<quint32, 4> numbers{};
    std::memcpy(numbers.data(), record, sizeof numbers);
    EXPECT_THAT(numbers, ElementsAre(0xFEEF04BDU, 0x00010000U, 0x00010002U, 0x00030004U));
    block[0] = 0;
    EXPECT_FALSE(Platform::versionRootBlock(block.data(), record, length));
}

TEST_F(RecordedPcTest, HasNoVersionsWhenNoneIsChosen) {
    EXPECT_EQ(Platform::fileVersionInfoSize("C:\\x.exe"), 0U);
    EXPECT_EQ(Platform::fileVersionInfoSize({}), 0U);
}

} // namespace
