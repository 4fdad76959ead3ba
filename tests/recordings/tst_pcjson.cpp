#include "recordings/PcJson.h"

#include "common/QtPrinters.h"
#include "platform/Folders.h"

#include <gmock/gmock.h>

namespace {

using Recordings::Pc;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PcJsonTest : public ::testing::Test {
protected:
    Pc read(const QByteArray& json) {
        std::vector<Recordings::Problem> found;
        Pc pc;
        pc.drives.make(*Recordings::DrivePath::parse("C:/a"), Recordings::File::Kind::File);
        pc.drives.make(*Recordings::DrivePath::parse("C:/b"), Recordings::File::Kind::Folder);
        Recordings::JsonFault fault;
        if (const auto value = Recordings::parseJson(json, fault)) {
            Recordings::readPcJson(*value, "pc.json", pc, found);
        } else {
            found.push_back({"pc.json", fault.line, fault.message});
        }
        problems.clear();
        for (const Recordings::Problem& problem : found) {
            EXPECT_EQ(problem.file, "pc.json");
            problems.push_back(QString("%1: %2").arg(problem.line).arg(problem.message));
        }
        return pc;
    }

    std::vector<QString> problems;
};

TEST_F(PcJsonTest, ReadsEverything) {
    const Pc pc = read(R"({
        "shellFolders": {"personal": "C:\\Users\\a\\Documents", "startMenu": "C:\\1", "commonStartMenu": "C:\\2",
                         "localAppData": "C:\\3", "commonAppData": "C:\\ProgramData"},
        "volumes": {"C": "\\\\?\\Volume{1}\\", "d": "\\\\?\\Volume{2}\\"},
        "environment": {"OculusBase": "C:\\Oculus\\", "EMPTY": ""},
        "packages": [{"family": "X_abc", "fullName": "X_1.0_x64__abc", "applicationIds": ["X_abc!App", "X_abc!B"]}],
        "userLocations": {"wal": "D:\\Wal"},
        "host": {"executable": "C:\\Host\\host.exe", "version": "1.2.3.65535"},
        "hidden": ["C:\\a", "C:\\none"], "system": ["C:\\b"], "codePage": 1250
    })");
    EXPECT_THAT(problems, IsEmpty());
    EXPECT_EQ(pc.shellFolders.value(Platform::csidlPersonal), "C:\\Users\\a\\Documents");
    EXPECT_EQ(pc.shellFolders.value(Platform::csidlStartMenu), "C:\\1");
    EXPECT_EQ(pc.shellFolders.value(Platform::csidlCommonStartMenu), "C:\\2");
    EXPECT_EQ(pc.shellFolders.value(Platform::csidlLocalAppData), "C:\\3");
    EXPECT_EQ(pc.shellFolders.value(Platform::csidlCommonAppData), "C:\\ProgramData");
    EXPECT_EQ(pc.volumes.value('C'), "\\\\?\\Volume{1}\\");
    EXPECT_EQ(pc.volumes.value('D'), "\\\\?\\Volume{2}\\");
    EXPECT_EQ(pc.environment.value("OculusBase"), "C:\\Oculus\\");
    EXPECT_TRUE(pc.environment.contains("EMPTY"));
    ASSERT_TRUE(pc.packages);
    ASSERT_EQ(pc.packages->size(), 1U);
    EXPECT_EQ(pc.packages->front().family, "X_abc");
    EXPECT_EQ(pc.packages->front().fullName, "X_1.0_x64__abc");
    EXPECT_THAT(pc.packages->front().applicationIds, ElementsAre("X_abc!App", "X_abc!B"));
    EXPECT_EQ(pc.userLocations, (QMap<QString, QString>{{"wal", "D:\\Wal"}}));
    EXPECT_EQ(pc.hostExecutable, "C:\\Host\\host.exe");
    EXPECT_EQ(pc.hostVersion, 0x000100020003FFFFU);
    const Recordings::File& file = *pc.drives.find(*Recordings::DrivePath::parse("C:/A"));
    EXPECT_TRUE(file.isHidden && !file.isSystem);
    const Recordings::File& folder = *pc.drives.find(*Recordings::DrivePath::parse("C:/B"));
    EXPECT_TRUE(!folder.isHidden && folder.isSystem);
    EXPECT_EQ(pc.codePage, 1250);
}

TEST_F(PcJsonTest, DoesWithNothing) {
    const Pc pc = read("{}");
    EXPECT_THAT(problems, IsEmpty());
    EXPECT_FALSE(pc.packages);
    EXPECT_TRUE(read(R"({"packages": []})").packages) << "none is installed";
    EXPECT_EQ(pc.hostVersion, 0U);
}

// Each way in which a description can be wrong.

TEST_F(PcJsonTest, ReportsAFaultWithItsLine) {
    const std::vector<std::pair<QByteArray, QString>> faults{
        {"{\n\"volumes\": {\n  \"C\" \"x\"\n}}", "3: \":\" is expected"},
        {"", "1: a value is expected"},
        {"{\"host\": {\n\"executable\": \"C:\\Host\\host.exe\"}}", "2: a backslash in a string must be doubled"},
        {"{\"host\": {\n\"executable\": \"C:\\new\"}}",
         "2: host.executable: a control character; are all backslashes doubled?"},
        {"[]", "1: an object is expected"},
        {"{\n\"hidden\": [\"Games\"]}", "2: hidden: \"Games\" has no drive letter"}};
    for (const auto& [json, problem] : faults) {
        EXPECT_EQ(read(json).hostExecutable, "");
        EXPECT_THAT(problems, ElementsAre(problem)) << json.toStdString();
    }
}

TEST_F(PcJsonTest, ReportsUnknownNames) {
    const Pc pc = read("{\"games\": 1,\n\"host\": {\n\"name\": 1,\n\"version\": \"0.0.0.1\"},\n"
                       "\"shellFolders\": {\"desktop\": \"C:\\\\x\"},\n"
                       "\"packages\": [{\"family\": \"a\", \"fullName\": \"b\", \"id\": 1}]}");
    EXPECT_THAT(problems, ::testing::UnorderedElementsAre("1: games: nothing of this name is known",
                                                          "3: host.name: nothing of this name is known",
                                                          "5: shellFolders.desktop: nothing of this name is known",
                                                          "6: packages[0].id: nothing of this name is known"));
    EXPECT_EQ(pc.hostVersion, 1U);
    EXPECT_EQ(pc.packages->size(), 1U);
}

TEST_F(PcJsonTest, ReportsWrongTypes) {
    const Pc pc = read("{\"environment\": {\n\"A\": 1,\n\"B\": \"2\"},\n\"volumes\": [],\n\"packages\": {},\n"
                       "\"hidden\": \"C:\\\\x\",\n\"system\": [\"C:\\\\y\", 5]}");
    EXPECT_THAT(problems, ::testing::UnorderedElementsAre(
                              "2: environment.A: a string is expected", "4: volumes: an object is expected",
                              "5: packages: an array is expected", "6: hidden: an array is expected",
                              "7: system[1]: a string is expected"));
    EXPECT_EQ(pc.environment.value("B"), "2");
}

TEST_F(PcJsonTest, ReportsABadVolume) {
    const Pc pc = read("{\"volumes\": {\n\"CD\": \"\\\\\\\\?\\\\Volume{1}\\\\\",\n\"E\": \"\\\\\\\\?\\\\Volume{1}\",\n"
                       "\"F\": \"\\\\\\\\?\\\\Volume{2}\\\\\"}}");
    EXPECT_THAT(problems, ElementsAre("2: volumes.CD: a drive letter is expected",
                                      "3: volumes.E: \"\\\\?\\Volume{…}\\\" is expected"));
    EXPECT_EQ(pc.volumes.size(), 1);
}

TEST_F(PcJsonTest, ReportsABadVersion) {
    for (const char* const version : {"1.2.3", "1.2.3.4.5", "1.2.3.x", "1.2.3.65536", "1.2.3.-4"}) {
        EXPECT_EQ(read("{\"host\": {\"version\": \"" + QByteArray(version) + "\"}}").hostVersion, 0U);
        EXPECT_THAT(problems, ElementsAre("1: host.version: four numbers up to 65535 are expected, as in \"1.2.3.4\""));
    }
}

TEST_F(PcJsonTest, ReportsAPackageWithoutItsNames) {
    const Pc pc = read("{\"packages\": [\n{\"family\": \"a\"}, 5, {\"family\": \"a\", \"fullName\": \"b\"}]}");
    EXPECT_THAT(problems, ElementsAre("2: packages[0]: a \"family\" and a \"fullName\" are expected",
                                      "2: packages[1]: an object is expected"));
    EXPECT_EQ(pc.packages->size(), 1U);
}

TEST_F(PcJsonTest, ReportsACodePageThatNobodyKnows) {
    for (const char* const codePage : {"1", "\"1250\"", "99999999999", "1250.5"}) {
        EXPECT_EQ(read("{\"codePage\": " + QByteArray(codePage) + "}").codePage, 1252);
        EXPECT_THAT(problems, ElementsAre("1: codePage: the number of an ANSI code page is expected, as 1252"));
    }
}

} // namespace
