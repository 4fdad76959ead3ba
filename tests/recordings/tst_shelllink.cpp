#include "recordings/ShellLink.h"

#include "common/QtPrinters.h"
#include "common/recorded/RecordingFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>

namespace {

using Recordings::parseShellLink;
using Recordings::ShellLink;
using ::testing::ElementsAre;

QByteArray number(quint32 value) {
    return {reinterpret_cast<const char*>(&value), sizeof value};
}

QByteArray shortNumber(int value) {
    return number(static_cast<quint32>(value)).left(2);
}

QByteArray wide(const QString& text) {
    return {reinterpret_cast<const char*>(text.utf16()), (text.size() + 1) * 2};
}

QByteArray header(quint32 flags) {
    return number(0x4C) + QByteArray::fromHex("0114020000000000c000000000000046") + number(flags) +
           QByteArray(52, '\0');
}

/// Link information with the path in ANSI only, as old systems write it.
QByteArray ansiInfo(const QByteArray& base, const QByteArray& suffix) {
    const auto baseAt = quint32{0x1C};
    const auto suffixAt = baseAt + static_cast<quint32>(base.size()) + 1;
    const auto size = suffixAt + static_cast<quint32>(suffix.size()) + 1;
    return number(size) + number(0x1C) + number(1) + number(0) + number(baseAt) + number(0) + number(suffixAt) + base +
           '\0' + suffix + '\0';
}

/// Link information with the path in both forms.
QByteArray wideInfo(const QByteArray& base, const QString& wideBase, const QString& wideSuffix = {}) {
    const auto baseAt = quint32{0x24};
    const auto suffixAt = baseAt + static_cast<quint32>(base.size()) + 1;
    const auto wideBaseAt = suffixAt + 1;
    const auto wideSuffixAt = wideBaseAt + static_cast<quint32>(wide(wideBase).size());
    const auto size = wideSuffixAt + static_cast<quint32>(wide(wideSuffix).size());
    return number(size) + number(0x24) + number(1) + number(0) + number(baseAt) + number(0) + number(suffixAt) +
           number(wideBaseAt) + number(wideSuffixAt) + base + '\0' + '\0' + wide(wideBase) + wide(wideSuffix);
}

QByteArray networkInfo(const QByteArray& share, const QByteArray& suffix) {
    const QByteArray network = number(0x14 + static_cast<quint32>(share.size()) + 1) + number(2) + number(0x14) +
                               number(0) + number(0x20000) + share + '\0';
    const auto networkAt = quint32{0x1C};
    const auto suffixAt = networkAt + static_cast<quint32>(network.size());
    const auto size = suffixAt + static_cast<quint32>(suffix.size()) + 1;
    return number(size) + number(0x1C) + number(2) + number(0) + number(0) + number(networkAt) + number(suffixAt) +
           network + suffix + '\0';
}

QByteArray text(const QString& string) {
    return shortNumber(string.size()) + wide(string).left(string.size() * 2);
}

QByteArray expandableBlock(const QString& target) {
    return number(0x314) + number(0xA0000001) + target.toLatin1().leftJustified(260, '\0', true) +
           wide(target).leftJustified(520, '\0', true);
}

/// Where a shortcut in C:/Menu leads.
QString target(const QByteArray& bytes) {
    QProcessEnvironment environment;
    environment.insert("ProgramFiles", "C:\\Program Files");
    const std::optional<ShellLink> link = parseShellLink(bytes);
    return link ? targetOf(*link, environment, "C:/Menu") : QString("(unreadable)");
}

TEST(ShellLinkTest, ReadsALocalPath) {
    EXPECT_EQ(target(header(0x82) + wideInfo("C:\\Games\\K?.exe", "C:\\Games\\Kä𝄞.exe")), "C:/Games/Kä𝄞.exe");
}

TEST(ShellLinkTest, ReadsALocalPathInAnsi) {
    EXPECT_EQ(target(header(0x02) + ansiInfo("C:\\Games\\K\xE4\x80.exe", "")), "C:/Games/Kä€.exe");
}

TEST(ShellLinkTest, JoinsACommonSuffix) {
    EXPECT_EQ(target(header(0x02) + ansiInfo("C:\\Shared\\", "Games\\x.exe")), "C:/Shared/Games/x.exe");
    EXPECT_EQ(target(header(0x02) + wideInfo("C:\\", "C:\\Shared\\", "x.exe")), "C:/Shared/x.exe");
}

TEST(ShellLinkTest, ReadsANetworkPath) {
    EXPECT_EQ(target(header(0x02) + networkInfo("\\\\server\\share", "Games\\x.exe")), "//server/share/Games/x.exe");
    EXPECT_EQ(target(header(0x02) + networkInfo("\\\\server\\share", "")), "//server/share");
}

// Shell items

QByteArray item(const QByteArray& contents) {
    return shortNumber(contents.size() + 2) + contents;
}

const QByteArray myComputer = item(QByteArray::fromHex("1f50e04fd020ea3a6910a2d808002b30309d"));
const QByteArray driveD = item(QByteArray("/D:\\").leftJustified(23, '\0'));
const QByteArray folderGames = item(QByteArray("\x31").leftJustified(10, '\0') + shortNumber(0x10) + "Games" + '\0');

/// An item with a short name, and the long one in a block in which it stands at the offset.
QByteArray fileItem(char type, const QByteArray& shortName, const QString& name, int nameOffset = 20) {
    const QByteArray head = QByteArray(1, type).leftJustified(10, '\0') + shortNumber(0x20) + shortName;
    const QByteArray padded = head + QByteArray(2 - head.size() % 2, '\0');
    const QByteArray block = shortNumber(9) + number(0xBEEF0004) + QByteArray(8, '\x7F') + shortNumber(nameOffset);
    const QByteArray rest = block.leftJustified(nameOffset - 2, '\x7F') + wide(name) + shortNumber(padded.size() + 2);
    return item(padded + item(rest));
}

/// A shortcut that has nothing but these items.
QByteArray ofItems(const QByteArray& items) {
    return header(0x81) + shortNumber(items.size() + 2) + items + shortNumber(0);
}

TEST(ShellLinkTest, FollowsAListOfItems) {
    EXPECT_EQ(target(ofItems(myComputer + driveD + folderGames + fileItem('\x32', "KÄ~1.EXE", "Käfer 競走 🎮.exe"))),
              "D:/Games/Käfer 競走 🎮.exe");
    EXPECT_EQ(target(ofItems(myComputer + driveD)), "D:/");
    EXPECT_EQ(target(ofItems(myComputer + driveD + folderGames)), "D:/Games");
}

TEST(ShellLinkTest, FollowsItemsOfEachWindows) {
    for (const int nameOffset : {20, 38, 42, 46}) { // XP, Vista, 7, 8.1 and later
        const QByteArray file = fileItem('\x32', "LONGNA~1.EXE", "long name.exe", nameOffset);
        EXPECT_EQ(target(ofItems(myComputer + driveD + file)), "D:/long name.exe") << nameOffset;
    }
    const QByteArray wideName = QByteArray("\x36").leftJustified(10, '\0') + shortNumber(0x20) + wide("ä.exe");
    EXPECT_EQ(target(ofItems(myComputer + driveD + item(wideName))), "D:/ä.exe");
}

TEST(ShellLinkTest, PrefersItemsToARelativePathOnly) {
    const QByteArray items = shortNumber((myComputer + driveD).size() + 2) + myComputer + driveD + shortNumber(0);
    EXPECT_EQ(target(header(0x03) + items + ansiInfo("C:\\x.exe", "")), "C:/x.exe");
    EXPECT_EQ(target(header(0x89) + items + text("y.exe")), "D:/");
}

TEST(ShellLinkTest, ItemsThatAreNoFileLeadNowhere) {
    const QByteArray file = fileItem('\x32', "X.EXE", "x.exe");
    EXPECT_EQ(target(ofItems("")), "");
    EXPECT_EQ(target(ofItems(myComputer)), "");
    EXPECT_EQ(target(ofItems(driveD + file)), "") << "no My Computer";
    EXPECT_EQ(target(ofItems(QByteArray(myComputer).replace(4, 1, "x") + driveD)), "") << "another root";
    EXPECT_EQ(target(ofItems(myComputer + QByteArray(driveD).replace(2, 1, ".") + file)), "") << "no drive";
    EXPECT_EQ(target(ofItems(myComputer + QByteArray(driveD).replace(3, 1, "1") + file)), "") << "no letter";
    EXPECT_EQ(target(ofItems(myComputer + QByteArray(driveD).replace(6, 1, "x") + file)), "") << "more than a drive";
    EXPECT_EQ(target(ofItems(myComputer + driveD + driveD)), "");
    EXPECT_EQ(target(ofItems(myComputer + driveD + file + file)), "") << "something in a file";
    EXPECT_EQ(target(ofItems(myComputer + driveD + fileItem('\x32', "X", "a\\b"))), "") << "no name";
    EXPECT_EQ(target(ofItems(myComputer + driveD + fileItem('\x32', "X", ".."))), "");
    EXPECT_EQ(target(ofItems(myComputer + driveD + fileItem('\x32', "", ""))), "");
    EXPECT_EQ(target(ofItems(myComputer + driveD + fileItem('\x30', "X", "x"))), "") << "neither file nor folder";
}

TEST(ShellLinkTest, DamagedItemsCostOnlyThemselves) {
    const QByteArray file = fileItem('\x32', "X.EXE", "long.exe");
    const auto beside = [](const QByteArray& items) {
        return target(header(0x03) + shortNumber(items.size()) + items + ansiInfo("C:\\x.exe", ""));
    };
    EXPECT_EQ(beside("12345"), "C:/x.exe");
    EXPECT_EQ(beside(myComputer + driveD + file.left(file.size() - 1)), "C:/x.exe");
    EXPECT_EQ(target(header(0x81) + shortNumber((myComputer + driveD).size()) + myComputer + driveD), "") << "no end";
    EXPECT_EQ(target(ofItems(myComputer + driveD + shortNumber(2))), "") << "an item without a type";
}

TEST(ShellLinkTest, SurvivesDamagedItems) {
    const QByteArray whole = ofItems(myComputer + driveD + folderGames + fileItem('\x32', "X.EXE", "long.exe"));
    for (int position = 0x4C; position + 2 <= whole.size(); ++position) {
        for (const int wrong : {0, 1, 2, 3, 0x7FFF, 0xFFFF}) {
            parseShellLink(QByteArray(whole).replace(position, 2, shortNumber(wrong)));
        }
    }
}

TEST(ShellLinkTest, SkipsTheItemList) {
    EXPECT_EQ(target(header(0x03) + shortNumber(5) + "12345" + ansiInfo("C:\\x.exe", "")), "C:/x.exe");
}

TEST(ShellLinkTest, ReadsARelativePath) {
    EXPECT_EQ(target(header(0x8C) + text("a name") + text("..\\Games\\x.exe")), "C:/Games/x.exe");
    EXPECT_EQ(target(header(0x08) + shortNumber(5) + "x.exe"), "C:/Menu/x.exe");
}

TEST(ShellLinkTest, PrefersTheLocalPathToARelativeOne) {
    EXPECT_EQ(target(header(0x8A) + ansiInfo("C:\\x.exe", "") + text("y.exe")), "C:/x.exe");
}

TEST(ShellLinkTest, ExpandsVariablesIgnoringCase) {
    EXPECT_EQ(target(header(0x280) + expandableBlock("%programfiles%\\X\\x.exe")), "C:/Program Files/X/x.exe");
    EXPECT_EQ(target(header(0x282) + ansiInfo("C:\\old.exe", "") + expandableBlock("C:\\new.exe")), "C:/new.exe");
}

TEST(ShellLinkTest, FindsTheVariablesBehindOtherBlocks) {
    EXPECT_EQ(target(header(0x280) + number(12) + number(0xA0000003) + number(0) + expandableBlock("C:\\x.exe")),
              "C:/x.exe");
}

TEST(ShellLinkTest, DoesWithoutVariablesThatAreNotSet) {
    EXPECT_EQ(target(header(0x282) + ansiInfo("C:\\x.exe", "") + expandableBlock("%none%\\y.exe")), "C:/x.exe");
    EXPECT_EQ(target(header(0x280) + expandableBlock("50%\\y.exe")), "");
}

TEST(ShellLinkTest, LeadsNowhereWithoutATarget) {
    EXPECT_EQ(target(header(0)), "");
    EXPECT_EQ(target(header(0x01) + shortNumber(2) + "12"), "");
    EXPECT_EQ(target(header(0x102) + ansiInfo("C:\\x.exe", "")), "") << "link information that is to be ignored";
}

TEST(ShellLinkTest, LeadsNowhereWhenWindowsHasNoRoomForThePath) {
    EXPECT_EQ(target(header(0x02) + ansiInfo("C:\\" + QByteArray(257, 'x'), "")), "");
    EXPECT_EQ(target(header(0x02) + ansiInfo("C:\\" + QByteArray(256, 'x'), "")).size(), 259);
}

// Damaged files

TEST(ShellLinkTest, RefusesWhatIsNoShortcut) {
    EXPECT_FALSE(parseShellLink(""));
    EXPECT_FALSE(parseShellLink("garbage"));
    EXPECT_FALSE(parseShellLink(QByteArray(1000, '\0')));
    EXPECT_FALSE(parseShellLink(header(0).replace(4, 1, "x")));
}

TEST(ShellLinkTest, SurvivesAFileThatIsCutAnywhere) {
    const QByteArray whole = header(0x2DF) + shortNumber(3) + "123" + wideInfo("C:\\x", "C:\\x") + text("1") +
                             text("2") + text("3") + text("4") + expandableBlock("%a%");
    ASSERT_TRUE(parseShellLink(whole));
    for (int size = 0; size < whole.size(); ++size) {
        const std::optional<ShellLink> link = parseShellLink(whole.left(size));
        EXPECT_TRUE(!link || link->expandable.isEmpty()) << size;
    }
}

TEST(ShellLinkTest, SurvivesWrongSizes) {
    const QByteArray whole = header(0x28B) + shortNumber(3) + "123" + wideInfo("C:\\x", "C:\\x") + text("2") +
                             number(12) + number(0xA0000003) + number(0) + expandableBlock("%a%");
    for (int position = 0x4C; position + 4 <= whole.size(); ++position) {
        for (const quint32 wrong : {0U, 1U, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
            parseShellLink(QByteArray(whole).replace(position, 4, number(wrong)));
        }
    }
}

// As Qt shows them

class ShortcutTest : public ::testing::Test {
protected:
    ShortcutTest() {
        pc.file("drives/C/Games/x.exe", "123");
        pc.file("drives/C/Menu/x.lnk", header(0x02) + ansiInfo("C:\\Games\\x.exe", ""));
        pc.file("drives/C/Menu/folder.lnk", header(0x02) + ansiInfo("C:\\Games", ""));
        pc.file("drives/C/Menu/dead.lnk", header(0x02) + ansiInfo("C:\\none.exe", ""));
        pc.file("drives/C/Menu/damaged.lnk", "garbage");
        pc.file("drives/C/Menu/BIG.LNK", header(0x02) + ansiInfo("C:\\Games\\x.exe", ""));
        pc.folder("drives/C/Menu/not.lnk");
        pc.choose();
    }

    RecordingFolder pc;
};

TEST_F(ShortcutTest, CountsAsItsTarget) {
    const QFileInfo shortcut("C:\\Menu\\x.lnk");
    EXPECT_EQ(shortcut.symLinkTarget(), "C:/Games/x.exe");
    EXPECT_TRUE(shortcut.isSymLink());
    EXPECT_TRUE(shortcut.isFile());
    EXPECT_EQ(shortcut.size(), 3);
    EXPECT_EQ(shortcut.canonicalFilePath(), "C:/Games/x.exe");
    EXPECT_EQ(shortcut.absoluteFilePath(), "C:/Menu/x.lnk");
}

TEST_F(ShortcutTest, ToAFolderCountsAsTheFolder) {
    EXPECT_TRUE(QFileInfo("C:/Menu/folder.lnk").isDir());
    EXPECT_THAT(QDir("C:/Menu/folder.lnk").entryList(QDir::Files), ElementsAre("x.exe"));
    EXPECT_FALSE(QFileInfo::exists("C:/Menu/folder.lnk/x.exe"));
}

TEST_F(ShortcutTest, IsReadItself) {
    QFile file("C:/Menu/x.lnk");
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_GT(file.size(), 76);
}

TEST_F(ShortcutTest, ToNothingDoesNotExist) {
    EXPECT_EQ(QFileInfo("C:/Menu/dead.lnk").symLinkTarget(), "C:/none.exe");
    for (const char* const path : {"C:/Menu/dead.lnk", "C:/Menu/damaged.lnk", "C:/Menu/none.lnk"}) {
        EXPECT_FALSE(QFileInfo::exists(path)) << path;
        EXPECT_TRUE(QFileInfo(path).isSymLink()) << path;
    }
    EXPECT_EQ(QFileInfo("C:/Menu/damaged.lnk").symLinkTarget(), "");
}

TEST_F(ShortcutTest, IsKnownByItsExactSuffixOnly) {
    EXPECT_FALSE(QFileInfo("C:/Menu/BIG.LNK").isSymLink());
    EXPECT_EQ(QFileInfo("C:/Menu/BIG.LNK").symLinkTarget(), "");
    EXPECT_FALSE(QFileInfo("C:/Menu/not.lnk").isSymLink());
    EXPECT_TRUE(QFileInfo("C:/Menu/not.lnk").isDir());
}

TEST_F(ShortcutTest, IsListedWhenItLeadsSomewhere) {
    const QDir folder("C:/Menu");
    EXPECT_THAT(folder.entryList({"*.lnk"}, QDir::Files), ElementsAre("BIG.LNK", "x.lnk"));
    EXPECT_THAT(folder.entryList({"*.lnk"}, QDir::Files | QDir::System),
                ElementsAre("BIG.LNK", "damaged.lnk", "dead.lnk", "x.lnk"));
}

TEST_F(ShortcutTest, TakesVariablesFromTheRecording) {
    pc.describe(R"({"environment": {"GAMES": "C:\\Games"}})");
    pc.file("drives/C/Menu/var.lnk", header(0x280) + expandableBlock("%Games%\\x.exe"));
    pc.choose();
    EXPECT_EQ(QFileInfo("C:/Menu/var.lnk").symLinkTarget(), "C:/Games/x.exe");
}

TEST_F(ShortcutTest, InACircleHasATargetAllTheSame) {
    pc.file("drives/C/Menu/a.lnk", header(0x02) + ansiInfo("C:\\Menu\\b.lnk", ""));
    pc.file("drives/C/Menu/b.lnk", header(0x02) + ansiInfo("C:\\Menu\\a.lnk", ""));
    EXPECT_EQ(QFileInfo("C:/Menu/a.lnk").symLinkTarget(), "C:/Menu/b.lnk");
    EXPECT_TRUE(QFileInfo("C:/Menu/a.lnk").isFile());
}

} // namespace
