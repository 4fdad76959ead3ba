#include "recordings/Drives.h"

#include "common/QtPrinters.h"

#include <gmock/gmock.h>

namespace {

using Recordings::Drives;
using Kind = Recordings::File::Kind;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

Recordings::DrivePath path(const QString& text) {
    return *Recordings::DrivePath::parse(text);
}

std::vector<QString> paths(const Drives& drives) {
    std::vector<QString> texts;
    drives.visit([&](const Recordings::DrivePath& at, const Recordings::File& file) {
        texts.push_back(at.text() + (file.isFolder() ? "/" : ""));
    });
    return texts;
}

TEST(Drives, HaveTheFoldersOnTheWay) {
    Drives drives;
    drives.make(path("d:\\Games\\X\\x.exe"), Kind::File);
    drives.make(path("C:/empty"), Kind::Folder);
    EXPECT_THAT(paths(drives),
                ElementsAre("C://", "C:/empty/", "D://", "D:/Games/", "D:/Games/X/", "D:/Games/X/x.exe"));
    EXPECT_THAT(drives.letters(), ElementsAre("C", "D"));
}

TEST(Drives, FindNamesInAnyLetterCase) {
    Drives drives;
    drives.make(path("C:/Käfer/x"), Kind::File);
    EXPECT_TRUE(drives.find(path("c:\\KÄFER\\X")));
    EXPECT_FALSE(drives.find(path("C:/Käfer/y")));
    EXPECT_FALSE(static_cast<const Drives&>(drives).find(path("C:/Käfer/x/"))) << "no folder";
    EXPECT_FALSE(drives.find(path("D:/")));
}

TEST(Drives, KeepWhatTheyKnow) {
    Drives drives;
    drives.make(path("C:/a"), Kind::File).contents = QByteArray("x");
    EXPECT_EQ(drives.make(path("C:/A"), Kind::File).contents.read(), QByteArray("x"));
    EXPECT_EQ(drives.find(path("C:/A"))->name, "a");
    drives.make(path("C:/A/b"), Kind::File);
    EXPECT_TRUE(drives.find(path("C:/a"))->isFolder());
}

TEST(Drives, ListFoldersInTheOrderInWhichTheyWereListed) {
    Drives drives;
    drives.make(path("C:/G/Z.exe"), Kind::File);
    drives.make(path("C:/G/known"), Kind::Folder);
    drives.list(path("C:/G"), {"b", "z.EXE", "A", "B"}, Kind::File);
    EXPECT_THAT(drives.list(path("C:/G")), ElementsAre("b", "z.EXE", "A", "known")) << "spelled as the list does";
    drives.list(path("C:/G"), {"sub"}, Kind::Folder);
    EXPECT_THAT(drives.list(path("C:/G")), ElementsAre("sub", "b", "z.EXE", "A", "known"));
    EXPECT_TRUE(drives.find(path("C:/G/sub"))->isFolder());
    EXPECT_THAT(drives.list(path("C:/none")), IsEmpty());
}

TEST(Drives, AddAFileOnce) {
    Drives drives;
    drives.make(path("C:/"), Kind::Folder);
    ASSERT_TRUE(drives.add("C:", "a"));
    EXPECT_FALSE(drives.add("C:", "A"));
    EXPECT_THAT(drives.list(path("C:/")), ElementsAre("a"));
}

} // namespace
