#include "recordings/OddPc.h"

#include "common/QtPrinters.h"
#include "recordings/DriveFolders.h"
#include "recordings/PcFile.h"
#include "recordings/PcJson.h"
#include "recordings/RegFileWriter.h"
#include "recordings/ShellLink.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

namespace {

using namespace Recordings;
using ::testing::ElementsAre;

QString describe(const std::vector<Problem>& problems) {
    QString text;
    for (const Problem& problem : problems) {
        text += QString("%1:%2: %3\n").arg(problem.file).arg(problem.line).arg(problem.message);
    }
    return text;
}

Pc readFile(const QByteArray& json) {
    JsonFault fault;
    std::vector<Problem> problems;
    QString text;
    const auto value = parseJson(json, fault);
    Pc pc = value ? readPcFile(*value, "pc.json", text, problems) : Pc();
    EXPECT_EQ(text + fault.message + describe(problems), "");
    return pc;
}

// What is written reads as what it was.

TEST(Formats, RegistryFile) {
    const Pc pc = OddPc::make(true);
    QStringList leftOut;
    const RegFile file = parseRegFile(renderRegFile(pc.registry, leftOut), "x.reg");
    EXPECT_EQ(describe(file.problems), "");
    Registry registry;
    registry.apply(file.keys);
    EXPECT_TRUE(registry == pc.registry) << renderPcFile(pc).toStdString();
    EXPECT_EQ(leftOut, QStringList());
}

TEST(Formats, RegistryFileKeepsTheSpellingOfKeysThatAreNamedByThoseBelowThem) {
    Registry registry;
    for (const QString key : {"SOFTWARE", "SOFTWARE\\WOW6432Node"}) {
        registry.apply({{RegKey::Root::LocalMachine, key, false, {}}});
    }
    QStringList leftOut;
    Registry again;
    again.apply(parseRegFile(renderRegFile(registry, leftOut), "x.reg").keys);
    EXPECT_TRUE(again == registry);
}

TEST(Formats, ValuesOfARootAreKept) {
    Pc pc;
    pc.registry.apply({{RegKey::Root::CurrentUser, "", false, {{"a", false, 3, "b"}, {"", false, 3, "c"}}}});
    pc.registry.apply({{RegKey::Root::CurrentUser, "X", false, {}}});
    QStringList leftOut;
    Registry again;
    again.apply(parseRegFile(renderRegFile(pc.registry, leftOut), "x.reg").keys);
    EXPECT_TRUE(again == pc.registry);
    EXPECT_TRUE(readFile(renderPcFile(pc)) == pc) << renderPcFile(pc).toStdString();
}

TEST(Formats, RegistryFileTellsWhatItCannotHave) {
    QStringList leftOut;
    renderRegFile(OddPc::make(false).registry, leftOut);
    EXPECT_EQ(leftOut, QStringList{"HKEY_USERS\\line\nbreak"});
}

TEST(Formats, Shortcut) {
    for (const QString target : {"C:\\x.exe", "D:\\Spiele\\Käferrennen\\käfer.exe", "D:\\競走クラブ\\KeisoClub.exe",
                                 "\\\\server\\share\\x.exe", "C:\\"}) {
        const std::optional<ShellLink> link = parseShellLink(renderShellLink(target));
        ASSERT_TRUE(link);
        EXPECT_EQ(link->localPath, target);
        EXPECT_EQ(targetOf(*link, {}, "C:/"), QString(target).replace('\\', '/'));
    }
    EXPECT_EQ(renderShellLink("C:\\x").size(), 0x4C + 0x24 + 0x11 + 5 + 1 + 10 + 2 + 4) << "nothing but the target";
}

TEST(Formats, Description) {
    Pc pc = OddPc::make(false);
    JsonFault fault;
    const std::optional<JsonValue> json = parseJson(renderJson(pcJson(pc)), fault);
    ASSERT_TRUE(json) << fault.message.toStdString();
    Pc again;
    again.drives = pc.drives;
    again.drives.find(*DrivePath::parse("C:/Games/競走.txt"))->isHidden = false;
    std::vector<Problem> problems;
    readPcJson(*json, "pc.json", again, problems);
    EXPECT_EQ(describe(problems), "");
    pc.registry = Registry();
    EXPECT_TRUE(again == pc);
}

TEST(Formats, Drives) {
    const QTemporaryDir folder;
    Pc pc = OddPc::make(true);
    ASSERT_EQ(writeDriveFolders(pc.drives, folder.path().toUtf8()), "");
    for (const QString path : {"C:/Games/a'b & c", "C:/Games/競走.txt"}) {
        File& file = *pc.drives.find(*DrivePath::parse(path));
        file.isHidden = file.isSystem = false; // which pc.json tells
    }
    std::vector<Problem> problems;
    const Drives drives = readDriveFolders(folder.path().toUtf8(), problems);
    EXPECT_EQ(describe(problems), "");
    EXPECT_TRUE(drives == pc.drives);
}

TEST(Formats, OneFile) {
    const Pc pc = OddPc::make(false);
    const QByteArray file = renderPcFile(pc);
    EXPECT_TRUE(readFile(file) == pc) << file.toStdString();
    EXPECT_EQ(renderPcFile(readFile(file)), file);
}

TEST(Formats, OneFileOfNothing) {
    EXPECT_TRUE(readFile(renderPcFile(Pc())) == Pc());
}

TEST(Formats, OneFileOfAPcThatKnowsNoPackagesAndOfOneThatHasNone) {
    Pc pc;
    EXPECT_FALSE(readFile(renderPcFile(pc)).packages);
    pc.packages.emplace();
    EXPECT_TRUE(readFile(renderPcFile(pc)).packages);
}

TEST(Formats, OneFileCanBeReadInAnEditor) {
    Pc pc;
    pc.drives.make(*DrivePath::parse("D:/Spiele/Wal/wal.exe"), File::Kind::File);
    pc.drives.make(*DrivePath::parse("D:/Spiele/Wal/wal.vdf"), File::Kind::File).contents = QByteArray("a\nb");
    pc.drives.make(*DrivePath::parse("D:/Spiele/Wal.lnk"), File::Kind::File).contents =
        renderShellLink("D:\\Spiele\\Wal\\wal.exe");
    pc.drives.make(*DrivePath::parse("D:/Spiele"), File::Kind::Folder).isHidden = true;
    pc.registry.make(RegKey::Root::CurrentUser, {"Software", "Wal"}, RegistryView::Bits64)
        .apply({"Size", false, 4, QByteArray("\x01\0\0\0", 4)});
    EXPECT_EQ(renderPcFile(pc), R"({
 "drives": {
  "D": [
   {"folder": "Spiele", "hidden": true, "entries": [
    {"folder": "Wal", "entries": [
     "wal.exe",
     {"file": "wal.vdf", "text": "a\nb"}
    ]},
    {"shortcut": "Wal.lnk", "target": "D:\\Spiele\\Wal\\wal.exe"}
   ]}
  ]
 },
 "format": "luruludri-pc",
 "registry": {
  "HKEY_CURRENT_USER\\Software\\Wal": {
   "Size": {
    "type": 4,
    "bytes": "01000000"
   }
  }
 },
 "version": 1
}
)");
}

TEST(Formats, OneFileKeepsTheFileSystemsOrder) {
    Pc pc;
    const DrivePath root = *DrivePath::parse("D:/");
    for (const char* const name : {"b", "C", "a"}) {
        pc.drives.make(pathIn(root, name), File::Kind::File);
    }
    EXPECT_THAT(readFile(renderPcFile(pc)).drives.list(root), ElementsAre("b", "C", "a"));
}

// Faults in the one file cost only what has them.

TEST(Formats, OneFileWithFaultsIsUsedAsFarAsItGoes) {
    JsonFault jsonFault;
    std::vector<Problem> problems;
    QString fault;
    const auto json = parseJson(R"({"format": "luruludri-pc", "version": 1,
"drives": {"C": ["a", "A", "con", 5, {"file": "b", "colour": 1}, {"text": "x"}], "CD": [], "D": 1},
"registry": {"HKEY_X\\a": {}, "HKEY_USERS\\a": {"x": 1,
"y": {"type": 3, "bytes": "0"}, "z": "good"}, "HKEY_USERS\\b": 1}, "surplus": 1})",
                                jsonFault);
    const Pc pc = readPcFile(*json, "x", fault, problems);
    EXPECT_EQ(describe(problems), R"(x:2: drives: for Windows the name "A" is there twice
x:2: drives: no file of Windows can be named "con"
x:2: drives: the name of a file is expected, or an object with one
x:2: drives: nothing is known of the name "colour"
x:2: drives: the name of a file is expected, or an object with one
x:2: drives: "CD" is no drive's letter
x:2: drives: a list is expected
x:3: registry: HKEY_X\a: a key with an object of values is expected
x:3: registry: x: a string is expected, or a "type" and "bytes" in hexadecimal digits
x:4: registry: y: a string is expected, or a "type" and "bytes" in hexadecimal digits
x:4: registry: HKEY_USERS\b: a key with an object of values is expected
x:4: surplus: nothing of this name is known
)");
    EXPECT_THAT(pc.drives.list(*DrivePath::parse("C:/")), ElementsAre("a", "b"));
    EXPECT_TRUE(Registry::value(pc.registry.open(RegKey::Root::Users, {"a"}, RegistryView::Bits64), "z"));
}

TEST(Formats, OneFileOfAnotherVersionIsRefused) {
    JsonFault jsonFault;
    std::vector<Problem> problems;
    for (const char* const version : {R"("version": 2)", R"("version": "x")", R"("a": 1)"}) {
        QString fault;
        const QByteArray text = QByteArray(R"({"format": "luruludri-pc", )") + version + '}';
        readPcFile(*parseJson(text, jsonFault), "x", fault, problems);
        EXPECT_EQ(fault, "its format is not version 1, the only one that is known here");
    }
}

} // namespace
