#include "stores/OculusLibraries.h"
#include "stores/OculusLibraryIndex.h"

#include "support/Logger.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "common/recorded/RecordingFolder.h"

#include <gmock/gmock.h>

namespace {

using ::testing::ElementsAre;

/// What only a recorded PC can have as wanted.
class OculusRecordedTest : public ::testing::Test {
protected:
    OculusRecordedTest() {
        for (const char* drive : {"C", "D", "E"}) {
            for (const char* folder : {"/Apps/Software", "/Apps/Manifests"}) {
                recording.folder(QByteArray("drives/") + drive + folder);
            }
        }
    }

    /// The folders of one library with this path on a PC with these volumes.
    QStringList foldersOf(const QByteArray& path, const QByteArray& volumes) {
        recording.describe("{\"volumes\": {" + volumes + "}}");
        recording.registry("[HKEY_CURRENT_USER\\Software\\Oculus VR, LLC\\Oculus\\Libraries\\{1}]\r\n\"Path\"=\"" +
                           path + "\"\r\n");
        recording.choose();
        return oculusLibraryFolders(logger);
    }

    TestPc pc; // whose folder takes the log
    RecordingFolder recording;
    Logger logger = Logger::create("Test");
};

TEST_F(OculusRecordedTest, AVolumeMountedTwiceBelongsToTheLaterLetter) {
    EXPECT_THAT(foldersOf(R"(\\\\?\\Volume{ab}\\Apps)", R"("E": "\\\\?\\Volume{ab}\\", "D": "\\\\?\\Volume{ab}\\")"),
                ElementsAre("E:/Apps/Manifests"));
}

TEST_F(OculusRecordedTest, OfNamesThatFitTheFirstInExactOrderIsTaken) {
    EXPECT_THAT(foldersOf(R"(\\\\?\\Volume{ab}\\Apps)", R"("C": "\\\\?\\Volume{ab}\\", "D": "\\\\?\\Volume{AB}\\")"),
                ElementsAre("D:/Apps/Manifests"));
}

TEST_F(OculusRecordedTest, AManifestThatBeginsWithADotNamesTheEmptyApp) {
    recording.file("drives/D/Apps/Manifests/.json.mini"); // on Windows no hidden file, under Wine one
    foldersOf("D:\\\\Apps", {});
    OculusLibraryIndex index;
    EXPECT_EQ(index.findByAppId("").size(), 1U);
}

TEST_F(OculusRecordedTest, EveryDriveLetterCounts) {
    for (const char letter : {'A', 'Z'}) {
        const QByteArray drive(1, letter);
        for (const char* folder : {"/Apps/Software", "/Apps/Manifests"}) {
            recording.folder("drives/" + drive + folder);
        }
        EXPECT_THAT(foldersOf(R"(\\\\?\\Volume{ab}\\Apps)", '"' + drive + R"(": "\\\\?\\Volume{ab}\\")"),
                    ElementsAre(drive + ":/Apps/Manifests"));
    }
}

} // namespace
