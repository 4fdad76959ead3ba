#include "support/FileVersion.h"
#include "support/KnownFolders.h"

#include "common/QtPrinters.h"
#include "support/scripted/ScriptedSystem.h"

#include <QDir>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace {

using ::testing::ElementsAre;

class ScriptedFoldersTest : public ::testing::Test {
protected:
    /// The shell answers with this result after it wrote "C:\Folder".
    void answer(qint32 result) {
        system.folderPath = system.ownFolderPath = [this, result](int csidl, char16_t* buffer) {
            asked.push_back(csidl);
            std::memcpy(buffer, u"C:\\Folder", sizeof u"C:\\Folder");
            return result;
        };
    }

    ScriptedSystem system;
    std::vector<int> asked;
};

TEST_F(ScriptedFoldersTest, AFolderIsThereUnlessTheResultIsNegative) {
    const QString separator = QDir::separator();
    for (const qint32 result : {0, 1, 2}) {
        answer(result);
        EXPECT_EQ(knownFolderPath(11), "C:\\Folder") << result;
        EXPECT_EQ(makeMakerFolderPath(0, "Logs"), "C:\\Folder" + separator + "Veltrane" + separator + "Logs") << result;
    }
    for (const qint32 result : {-1, static_cast<qint32>(0x80004005)}) {
        answer(result);
        EXPECT_EQ(knownFolderPath(11), "") << result;
        EXPECT_EQ(makeMakerFolderPath(0, "Logs"), separator + "Veltrane" + separator + "Logs") << result;
    }
}

TEST_F(ScriptedFoldersTest, EachKindIsItsFolder) {
    answer(0);
    for (const int kind : {0, 1, 2, 3, -1}) {
        makeMakerFolderPath(kind, "Logs");
    }
    EXPECT_THAT(asked, ElementsAre(28, 35, 5, 28, 28));
    asked.clear();
    knownFolderPath(22);
    EXPECT_THAT(asked, ElementsAre(22));
}

TEST_F(ScriptedFoldersTest, APathWithoutItsEndIsCutAtTheBuffers) {
    system.folderPath = [](int, char16_t* buffer) {
        std::fill_n(buffer, 260, u'x');
        return 0;
    };
    EXPECT_EQ(knownFolderPath(11), QString(259, 'x'));
}

class ScriptedVersionTest : public ::testing::Test {
protected:
    ScriptedVersionTest() {
        system.fileVersionInfoSize = [this](const QString&) { return size; };
        system.fileVersionInfo = [this](const QString& path, quint32 askedFor, void* block) {
            EXPECT_EQ(path, "C:\\x.exe");
            EXPECT_EQ(askedFor, size);
            std::memcpy(block, &mark, sizeof mark);
            return hasBlock;
        };
        system.versionRootBlock = [this](const void* block, const void*& record, quint32& found) {
            quint32 begins = 0;
            std::memcpy(&begins, block, sizeof begins);
            EXPECT_EQ(begins, mark) << "the block that was read";
            record = words.data();
            found = length;
            return hasRecord;
        };
    }

    /// The version as text.
    static QString version() {
        const FileVersion version = readFileVersion("C:\\x.exe");
        return QString("%1.%2.%3.%4").arg(version.major).arg(version.minor).arg(version.build).arg(version.revision);
    }

    ScriptedSystem system;
    const quint32 mark = 0x12345678;
    quint32 size = 100;
    bool hasBlock = true;
    bool hasRecord = true;
    quint32 length = 52;
    std::array<quint32, 13> words{0xFEEF04BD, 0x00010000, 0xFFFE0001, 0x8000ABCD, 9, 9};
};

TEST_F(ScriptedVersionTest, IsTheHalvesOfTheFilesTwoWords) {
    EXPECT_EQ(version(), "65534.1.32768.43981");
}

TEST_F(ScriptedVersionTest, IsZeroWhenTheRecordHasAnotherLength) {
    for (const quint32 other : {0U, 51U, 53U, 104U}) {
        length = other;
        EXPECT_EQ(version(), "0.0.0.0") << other;
    }
}

TEST_F(ScriptedVersionTest, IsZeroWhenAnyQuestionFails) {
    hasBlock = false;
    EXPECT_EQ(version(), "0.0.0.0") << "no block";
    hasBlock = true;
    hasRecord = false;
    EXPECT_EQ(version(), "0.0.0.0") << "no record in it";
    hasRecord = true;
    size = 0;
    EXPECT_EQ(version(), "0.0.0.0") << "no resource";
}

TEST_F(ScriptedVersionTest, NothingMoreIsAskedWithoutAResource) {
    size = 0;
    bool isAsked = false;
    system.fileVersionInfo = [&isAsked](const QString&, quint32, void*) {
        isAsked = true;
        return true;
    };
    EXPECT_EQ(version(), "0.0.0.0");
    EXPECT_FALSE(isAsked);
}

} // namespace
