#include "find/record/WriteFault.h"

#include "common/QtPrinters.h"
#include "find/pc/System.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Find;

namespace {

TEST(WriteFault, NamesTheFolderThatIsMissing) {
    const QTemporaryDir folder;
    const QString missing = folder.filePath("none");
    EXPECT_EQ(causeAgainstFile(folder.filePath("x.json")), "");
    EXPECT_EQ(causeAgainstFile(missing + "/x.json"), "there is no folder " + QDir::toNativeSeparators(missing));
    EXPECT_EQ(causeAgainstFolder(missing + "/deep/er"), "") << "these are made";
}

TEST(WriteFault, NamesTheFileThatIsInTheWay) {
    const QTemporaryDir folder;
    const QString inTheWay = folder.filePath("file");
    QFile file(inTheWay);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(causeAgainstFile(inTheWay + "/x"), QDir::toNativeSeparators(inTheWay) + " is not a folder");
    EXPECT_EQ(causeAgainstFolder(inTheWay + "/a/b"), QDir::toNativeSeparators(inTheWay) + " is not a folder");
}

TEST(WriteFault, NamesTheDriveThatIsMissing) {
    if (!isPcItself()) {
        GTEST_SKIP() << "no drives here";
    }
    EXPECT_EQ(causeAgainstFile("Q:\\my\\pc.json"), "there is no drive Q:");
    EXPECT_EQ(causeAgainstFolder("q:/my"), "there is no drive Q:");
    EXPECT_EQ(causeAgainstFile("\\\\nobody\\share\\x.json"), "there is no folder \\\\nobody\\share")
        << "which is no drive";
}

TEST(WriteFault, NamesTheFolderThatIsReadOnly) {
    const QTemporaryDir folder;
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::ExeOwner);
    if (QFileInfo(folder.path()).isWritable()) {
        GTEST_SKIP() << "nothing is read-only for whoever runs this";
    }
    EXPECT_EQ(causeAgainstFile(folder.filePath("x")), QDir::toNativeSeparators(folder.path()) + " is read-only");
    EXPECT_EQ(causeAgainstFolder(folder.filePath("x/y")), QDir::toNativeSeparators(folder.path()) + " is read-only");
    QFile::setPermissions(folder.path(), QFileDevice::ReadOwner | QFileDevice::WriteOwner | QFileDevice::ExeOwner);
}

TEST(WriteFault, SaysInPlainWordsWhatTheSystemDoesNot) {
    EXPECT_EQ(causeOf(QFileDevice::ResourceError, "No space left on device"), "the disk is full");
    EXPECT_EQ(causeOf(QFileDevice::PermissionsError, "Access is denied."), "it is read-only");
    EXPECT_EQ(causeOf(QFileDevice::WriteError, "Broken"), "Broken");
}

} // namespace
