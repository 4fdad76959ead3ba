#include "steam/SteamLibraryIndex.h"

#include "common/QtPrinters.h"
#include "common/recorded/QuestionsTest.h"
#include "platform/Registry.h"

#include <gmock/gmock.h>

namespace {

using ::testing::Contains;
using ::testing::StartsWith;

using SteamQuestionsTest = QuestionsTest;

TEST_F(SteamQuestionsTest, OfAllFilesTheListOfLibrariesAloneIsOpenedAndOnce) {
    pc.file("C:\\Steam\\steam.exe");
    pc.value({Platform::RootKey::ClassesRoot, "steam\\Shell\\Open\\Command", 1}, "", "C:\\Steam\\steam.exe");
    pc.file("C:\\Steam\\steamapps\\libraryfolders.vdf", "\"path\" \"D:\\\\Library\"\n");
    pc.file("C:\\Steam\\steamapps\\appmanifest_1.acf");
    pc.file("D:\\Library\\steamapps\\libraryfolders.vdf", "\"path\" \"E:\\\\Library\"\n");
    pc.file("D:\\Library\\steamapps\\appmanifest_2.acf");
    SteamLibraryIndex index;
    const auto questions = questionsOf([&] { EXPECT_EQ(index.entries().size(), 2U); });
    EXPECT_THAT(questions, Contains(StartsWith("open ")).Times(1));
    EXPECT_THAT(questions, Contains("open C:/Steam/steamapps/libraryfolders.vdf"));
    EXPECT_THAT(questions, Contains("list C:/Steam/steamapps").Times(1));
    EXPECT_THAT(questions, Contains("list D:/Library/steamapps").Times(1));
}

} // namespace
