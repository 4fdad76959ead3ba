#include "stores/EpicManifestIndex.h"

#include "common/EpicLauncher.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>

#include <windows.h>

namespace {

using ::testing::ElementsAre;

TEST(LockedManifestTest, AManifestThatCanNotBeOpenedIsSkippedByName) {
    TestPc pc;
    addEpicApp(pc, "1.item", {"Kiwi", "Kiwi", "D:\\Kiwi"});
    addEpicApp(pc, "2.item", {"Plum", "Plum", "D:\\Plum"});
    const QString path = manifestFolder + "\\1.item";
    constexpr DWORD sharedWithNobody = 0;
    const HANDLE file = CreateFileW(reinterpret_cast<const wchar_t*>(path.utf16()), GENERIC_READ, sharedWithNobody,
                                    nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    EpicManifestIndex index;
    EXPECT_EQ(index.entries().size(), 1U);
    CloseHandle(file);
    EXPECT_THAT(pc.messages("Quorvan.Finders.EpicStore"),
                ElementsAre("A: MetaDir Folder: " + manifestFolder, "W:   Skipped invalid manifest: 1.item",
                            "A:   App: Plum | Plum"));
}

} // namespace
