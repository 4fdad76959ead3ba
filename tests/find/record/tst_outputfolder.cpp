#include "find/record/OutputFolder.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

using Host::OutputFolder;

class OutputFolderTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    static QByteArray contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    QString fault;

private:
    QTemporaryDir m_folder;
};

TEST_F(OutputFolderTest, IsMadeAndKept) {
    {
        OutputFolder folder(path("a/b"), fault);
        EXPECT_EQ(fault, "");
        EXPECT_TRUE(folder.write("deep/in it/x.txt", "text"));
        EXPECT_TRUE(folder.makeFolder("empty/one"));
        folder.keep();
    }
    EXPECT_EQ(contents(path("a/b/deep/in it/x.txt")), "text");
    EXPECT_TRUE(QFileInfo(path("a/b/empty/one")).isDir());
}

TEST_F(OutputFolderTest, GoesUnlessItIsKept) {
    {
        const OutputFolder folder(path("new"), fault);
        EXPECT_TRUE(folder.write("deep/x.txt", "text"));
    }
    EXPECT_FALSE(QFileInfo::exists(path("new")));
}

TEST_F(OutputFolderTest, ThatWasThereIsEmptyAgain) {
    QDir().mkpath(path("there"));
    {
        const OutputFolder folder(path("there"), fault);
        EXPECT_EQ(fault, "");
        EXPECT_TRUE(folder.write("x.txt", "text"));
    }
    EXPECT_TRUE(QDir(path("there")).isEmpty());
    EXPECT_TRUE(QFileInfo::exists(path("there")));
}

TEST_F(OutputFolderTest, ThatIsNotEmptyIsLeftAlone) {
    QDir().mkpath(path("full/folder"));
    { const OutputFolder folder(path("full"), fault); }
    EXPECT_EQ(fault, path("full") + ": the folder is not empty");
    EXPECT_TRUE(QFileInfo::exists(path("full/folder")));
}

TEST_F(OutputFolderTest, AFileIsNoFolder) {
    QFile file(path("file"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    { const OutputFolder folder(path("file"), fault); }
    EXPECT_EQ(fault, path("file") + ": is no folder");
    EXPECT_TRUE(QFileInfo::exists(path("file")));
    fault.clear();
    { const OutputFolder folder(path("file/below"), fault); }
    EXPECT_EQ(fault, path("file/below") + ": the folder cannot be made");
}

TEST_F(OutputFolderTest, AFileThatCannotBeWrittenIsTold) {
    const OutputFolder folder(path("new"), fault);
    EXPECT_TRUE(folder.write("x", ""));
    EXPECT_FALSE(folder.write("x/y", "text")) << "below a file";
    EXPECT_FALSE(folder.makeFolder("x/z"));
}

} // namespace
