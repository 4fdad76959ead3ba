#include "steam/SteamLibraryFolders.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

TEST(SteamLibraryFoldersInTheCurrentFolder, AnEmptyPathIsOne) {
    const QString current = QDir::currentPath() + "/steamapps";
    TestPc pc;
    pc.file("C:\\Steam\\libraryfolders.vdf", "\"path\" \"\"\n\"path\" \".\"\n\"path\"\n");
    EXPECT_THAT(parseLibraryFolders("C:/Steam/libraryfolders.vdf"), ElementsAre(current, current, current));
}

} // namespace
