#include "steam/SteamLibraryFolders.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>

namespace {

using ::testing::IsEmpty;

// Nobody knows which folder that was, and that of whoever replays the PC is not on it.
TEST(SteamLibraryFoldersInTheCurrentFolder, ThereAreNone) {
    TestPc pc;
    pc.file("C:\\Steam\\libraryfolders.vdf", "\"path\" \"\"\n\"path\" \".\"\n\"path\"\n");
    EXPECT_THAT(parseLibraryFolders("C:/Steam/libraryfolders.vdf"), IsEmpty());
}

} // namespace
