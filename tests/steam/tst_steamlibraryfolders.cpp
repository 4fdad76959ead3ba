#include "steam/SteamLibraryFolders.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SteamLibraryFoldersTest : public ::testing::Test {
protected:
    SteamLibraryFoldersTest() {
        pc.folder("D:\\SteamLibrary");
        pc.folder("E:\\Spiele\\Dämpfe 競走");
    }

    QStringList parse(const QByteArray& vdf) {
        pc.file(path, vdf);
        return parseLibraryFolders(path);
    }

    TestPc pc;
    const QString path = "C:/Steam/steamapps/libraryfolders.vdf";
};

TEST_F(SteamLibraryFoldersTest, ReadsTheLibrariesInOrder) {
    EXPECT_THAT(parse("\"libraryfolders\"\n"
                      "{\n"
                      "\t\"0\"\n"
                      "\t{\n"
                      "\t\t\"path\"\t\t\"E:\\\\Spiele\\\\D\xC3\xA4mpfe \xE7\xAB\xB6\xE8\xB5\xB0\"\n"
                      "\t\t\"label\"\t\t\"\"\n"
                      "\t\t\"apps\"\n"
                      "\t\t{\n"
                      "\t\t\t\"228980\"\t\t\"1\"\n"
                      "\t\t}\n"
                      "\t}\n"
                      "\t\"1\"\n"
                      "\t{\n"
                      "\t\t\"path\"\t\t\"D:\\\\SteamLibrary\"\n"
                      "\t}\n"
                      "}\n"),
                ElementsAre("E:/Spiele/Dämpfe 競走/steamapps", "D:/SteamLibrary/steamapps"));
}

TEST_F(SteamLibraryFoldersTest, AMissingFileListsNone) {
    EXPECT_THAT(parseLibraryFolders(path), IsEmpty());
    pc.folder("C:\\Steam\\steamapps\\folder.vdf");
    EXPECT_THAT(parseLibraryFolders("C:/Steam/steamapps/folder.vdf"), IsEmpty()) << "nor does a folder";
    EXPECT_THAT(parse(""), IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, ALibraryThatIsGoneIsPassedOver) {
    pc.file("D:\\file");
    EXPECT_THAT(parse("\"path\" \"D:\\\\Gone\"\n\"path\" \"Q:\\\\Gone\"\n\"path\" \"D:\\\\file\"\n"
                      "\"path\" \"D:\\\\SteamLibrary\"\n"),
                ElementsAre("D:/SteamLibrary/steamapps"));
}

TEST_F(SteamLibraryFoldersTest, TheOldLayoutListsNone) {
    EXPECT_THAT(parse("\"LibraryFolders\"\n{\n\t\"1\"\t\t\"D:\\\\SteamLibrary\"\n}\n"), IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, OnlyALineThatBeginsWithTheKeyCounts) {
    EXPECT_THAT(parse("\"path_extra\"  \"D:\\\\SteamLibrary\"\n"
                      "\"Path\" \"D:\\\\SteamLibrary\"\n"
                      "path \"D:\\\\SteamLibrary\"\n"
                      "{ \"path\" \"D:\\\\SteamLibrary\"\n"
                      "// \"path\" \"D:\\\\SteamLibrary\"\n"
                      "\"path\n"
                      "\"D:\\\\SteamLibrary\"\n"),
                IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, TheSpaceAroundMayBeAny) {
    for (const char* line :
         {"\"path\"\"D:\\\\SteamLibrary\"", "\"path\" D:\\\\SteamLibrary", " \t\"path\"  \"D:\\\\SteamLibrary\" \r\n",
          "\"path\" \"D:\\SteamLibrary\"", "\"path\" \"D:/SteamLibrary/\"", "\r\"path\" \"D:\\\\SteamLibrary\\\\.\""}) {
        EXPECT_THAT(parse(line), ElementsAre("D:/SteamLibrary/steamapps")) << line;
    }
}

TEST_F(SteamLibraryFoldersTest, OnlyTheFirstAndTheLastCharacterAreTakenForQuotes) {
    EXPECT_THAT(parse("\"path\" \"D:\\\\SteamLibraryX\n"), ElementsAre("D:/SteamLibrary/steamapps"));
    EXPECT_THAT(parse("\"path\" \"D:\\\\SteamLibrary\" // mine\n"), IsEmpty());
    EXPECT_THAT(parse("\"path\" D:\\\\SteamLibrary\"\n"), IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, TheTextEndsAtItsFirstZero) {
    const QByteArray line("\"path\" \"D:\\\\SteamLibrary\"\n");
    EXPECT_THAT(parse(line + '\0' + line), ElementsAre("D:/SteamLibrary/steamapps"));
    EXPECT_THAT(parse('\0' + line), IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, AByteOrderMarkOfUtf8IsNoText) {
    EXPECT_THAT(parse("\xEF\xBB\xBF\"path\" \"D:\\\\SteamLibrary\""), ElementsAre("D:/SteamLibrary/steamapps"));
}

TEST_F(SteamLibraryFoldersTest, AnyEncodingButUtf8FindsNoFolder) {
    EXPECT_THAT(parse("\"path\" \"E:\\\\Spiele\\\\D\xE4mpfe\""), IsEmpty());
}

TEST_F(SteamLibraryFoldersTest, ListsALibraryAsOftenAsTheFileDoes) {
    EXPECT_THAT(parse("\"path\" \"D:\\\\SteamLibrary\"\n\"path\" \"D:\\\\SteamLibrary\"\n"),
                ElementsAre("D:/SteamLibrary/steamapps", "D:/SteamLibrary/steamapps"));
}

TEST_F(SteamLibraryFoldersTest, AFileIsReadToItsEndHoweverLargeItIs) {
    const QByteArray library = "\"path\" \"D:\\\\SteamLibrary\"\n";
    EXPECT_THAT(parse(QByteArray(17 * 1024 * 1024, ' ') + '\n' + library), ElementsAre("D:/SteamLibrary/steamapps"));
}

TEST_F(SteamLibraryFoldersTest, APathOfAnyLengthIsALibraryThatIsGone) {
    for (const int length : {260, 4'096, 40'000}) {
        EXPECT_THAT(parse("\"path\" \"D:\\\\" + QByteArray(length, 'x') + "\"\n\"path\" \"D:\\\\SteamLibrary\"\n"),
                    ElementsAre("D:/SteamLibrary/steamapps"))
            << length;
    }
}

} // namespace
