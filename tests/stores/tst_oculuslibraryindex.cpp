#include "stores/OculusLibraryIndex.h"

#include "common/OculusStore.h"
#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QString logName = "Quorvan.Finders.OculusStore";

class OculusLibraryIndexTest : public ::testing::Test {
protected:
    /// A library with these manifest files.
    void addLibrary(const QString& folder, const QStringList& manifests) {
        makeOculusFolders(pc, folder);
        addOculusLibrary(pc, '{' + QString::number(++libraries) + '}', folder);
        for (const QString& manifest : manifests) {
            pc.file(folder + "\\Manifests\\" + manifest, "not read");
        }
    }

    QStringList entries() {
        QStringList texts;
        for (const OculusAppEntry& entry : index.entries()) {
            texts.append(entry.appId + " in " + entry.manifestsFolder);
        }
        return texts;
    }

    TestPc pc;
    OculusLibraryIndex index;
    int libraries = 0;
};

TEST_F(OculusLibraryIndexTest, ListsTheAppsOfAllLibraries) {
    addLibrary("D:\\Oculus Apps", {"bolt-studio-kite.json.mini", "zed.json.mini"});
    addLibrary("C:\\Oculus", {"bolt-studio-kite.json.mini"});
    EXPECT_THAT(entries(), ElementsAre("bolt-studio-kite in D:/Oculus Apps/Manifests",
                                       "zed in D:/Oculus Apps/Manifests", "bolt-studio-kite in C:/Oculus/Manifests"));
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("A: Library Folder: D:/Oculus Apps/Manifests", "A:   App ID: bolt-studio-kite",
                            "A:   App ID: zed", "A: Library Folder: C:/Oculus/Manifests",
                            "A:   App ID: bolt-studio-kite"));
}

TEST_F(OculusLibraryIndexTest, AnAppIdEndsAtTheFirstDot) {
    addLibrary("D:\\Apps", {"abc.def.json.mini", "Käfer 競走.JSON.Mini"});
    EXPECT_THAT(entries(), ElementsAre("abc in D:/Apps/Manifests", "Käfer 競走 in D:/Apps/Manifests"));
}

TEST_F(OculusLibraryIndexTest, OnlyMiniManifestsCount) {
    addLibrary("D:\\Apps", {"a.json", "b.mini", "c.json.mini.bak", "json.mini", "d.json.minis", "e.json.mini"});
    pc.folder("D:\\Apps\\Manifests\\f.json.mini");
    pc.file("D:\\Apps\\Manifests\\below\\g.json.mini");
    EXPECT_THAT(entries(), ElementsAre("e in D:/Apps/Manifests"));
}

TEST_F(OculusLibraryIndexTest, WithoutLibrariesThereAreNoApps) {
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Not found"));
    EXPECT_EQ(pc.log(logName).count("LOG CREATED"), 1);
    EXPECT_EQ(pc.log(logName).count("LOG DESTROYED"), 1);
}

TEST_F(OculusLibraryIndexTest, RejectedLibrariesAreToldInTheIndexesLog) {
    addOculusLibrary(pc, "{1}", "D:\\Gone");
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName),
                ElementsAre("E: OculusStore: Failed to open. UNC: D:\\Gone, path: D:\\Gone, 0, 0, 0", "A: Not found"));
}

TEST_F(OculusLibraryIndexTest, EmptyLibrariesHaveNoAppId) {
    addLibrary("D:\\Apps", {});
    addLibrary("C:\\Apps", {"readme.txt"});
    EXPECT_THAT(entries(), IsEmpty());
    EXPECT_THAT(pc.messages(logName), ElementsAre("A: Library Folder: D:/Apps/Manifests",
                                                  "A: Library Folder: C:/Apps/Manifests", "A: No App ID"));
}

TEST_F(OculusLibraryIndexTest, FindsAppsByTheirExactId) {
    addLibrary("D:\\1", {"kite.json.mini", "kite2.json.mini"});
    addLibrary("D:\\2", {"kite.json.mini"});
    const auto found = [this](const QString& appId) {
        QStringList folders;
        for (const OculusAppEntry& entry : index.findByAppId(appId)) {
            folders.append(entry.manifestsFolder);
        }
        return folders;
    };
    EXPECT_THAT(found("kite"), ElementsAre("D:/1/Manifests", "D:/2/Manifests"));
    EXPECT_THAT(found("Kite"), IsEmpty());
    EXPECT_THAT(found("kit"), IsEmpty());
    EXPECT_THAT(found(""), IsEmpty());
}

} // namespace
