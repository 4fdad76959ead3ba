#include "platform/Listing.h"

#include "common/PcTest.h"
#include "common/QtPrinters.h"

#include <gmock/gmock.h>

#include <map>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr quint32 ofInterest =
    Platform::attributeHidden | Platform::attributeSystem | Platform::attributeFolder | Platform::attributeLink;

std::vector<Platform::FolderEntry> entriesOf(const QString& folder) {
    std::vector<Platform::FolderEntry> entries;
    Platform::FolderEntry entry;
    const Platform::ListingHandle listing = Platform::firstEntry(folder, entry);
    for (bool isThere = listing != nullptr; isThere; isThere = Platform::nextEntry(listing, entry)) {
        entries.push_back(entry);
    }
    return entries;
}

QStringList namesIn(const QString& folder) {
    QStringList names;
    for (const Platform::FolderEntry& entry : entriesOf(folder)) {
        names.append(entry.name);
    }
    return names;
}

bool isSame(const QString& a, const QString& b) {
    Platform::FileIdentity one;
    Platform::FileIdentity other;
    EXPECT_TRUE(Platform::fileIdentity(a, one)) << a.toStdString();
    EXPECT_TRUE(Platform::fileIdentity(b, other)) << b.toStdString();
    return one.volume == other.volume && one.index == other.index;
}

using ListingTest = PcTest;

TEST_F(ListingTest, ListsFilesAndFoldersInTheFileSystemsOrder) {
    for (const char* name : {"b.txt", "A.txt", "Ü.txt", "競走.lnk", "c\\file"}) {
        pc.file(QString("C:\\Folder\\") + name);
    }
    EXPECT_THAT(namesIn("C:\\Folder"), ElementsAre(".", "..", "A.txt", "b.txt", "c", "Ü.txt", "競走.lnk"));
    EXPECT_THAT(namesIn("C:/Folder/"), ElementsAre(".", "..", "A.txt", "b.txt", "c", "Ü.txt", "競走.lnk"));
}

TEST_F(ListingTest, TellsTheAttributesOfTheEntryItself) {
    pc.file("C:\\Folder\\file");
    pc.folder("C:\\Folder\\folder");
    pc.file("C:\\Folder\\hidden");
    pc.hide("C:\\Folder\\hidden");
    pc.folder("C:\\Folder\\system");
    pc.makeSystem("C:\\Folder\\system");
    pc.shortcut("C:\\Folder\\to folder.lnk", "C:\\Folder\\folder");
    std::map<QString, quint32> attributes;
    for (const Platform::FolderEntry& entry : entriesOf("C:\\Folder")) {
        attributes[entry.name] = entry.attributes & ofInterest;
    }
    EXPECT_EQ(attributes["file"], 0U);
    EXPECT_EQ(attributes["folder"], Platform::attributeFolder);
    EXPECT_EQ(attributes["hidden"], Platform::attributeHidden);
    EXPECT_EQ(attributes["system"], Platform::attributeFolder | Platform::attributeSystem);
    EXPECT_EQ(attributes["to folder.lnk"], 0U);
    EXPECT_EQ(attributes["."], Platform::attributeFolder);
}

TEST_F(ListingTest, AnEmptyFolderListsItselfAndItsParent) {
    pc.folder("C:\\Folder");
    EXPECT_THAT(namesIn("C:\\Folder"), ElementsAre(".", ".."));
}

TEST_F(ListingTest, WhatIsNoFolderListsNothing) {
    pc.file("C:\\file");
    EXPECT_THAT(namesIn("C:\\Missing"), IsEmpty());
    EXPECT_THAT(namesIn("C:\\file"), IsEmpty());
    EXPECT_THAT(namesIn("Q:\\"), IsEmpty());
}

TEST_F(ListingTest, AnIdentityIsTheFilesHoweverItIsReached) {
    pc.file("C:\\Folder\\file");
    pc.file("C:\\Other\\file");
    pc.link("C:\\Link", "C:\\Folder");
    EXPECT_TRUE(isSame("C:\\Folder", "c:/FOLDER"));
    EXPECT_TRUE(isSame("C:\\Folder", "C:\\Link"));
    EXPECT_TRUE(isSame("C:\\Folder\\file", "C:\\Link\\file"));
    EXPECT_FALSE(isSame("C:\\Folder", "C:\\Other"));
    EXPECT_FALSE(isSame("C:\\Folder\\file", "C:\\Other\\file"));
    Platform::FileIdentity identity;
    EXPECT_FALSE(Platform::fileIdentity("C:\\Missing", identity));
}

} // namespace
