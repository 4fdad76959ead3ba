#include "find/record/OutputFolder.h"

#include "common/QtPrinters.h"
#include "recordings/HostFiles.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

namespace {

using Find::OutputFolder;

class OutputFolderTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return m_folder.filePath(name); }

    static QByteArray contents(const QString& path) {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("missing");
    }

    static void write(const OutputFolder& folder, const QByteArray& name) {
        EXPECT_TRUE(Recordings::HostFiles::write(folder.path().toUtf8() + '/' + name, "text"));
    }

    QString fault;

private:
    QTemporaryDir m_folder;
};

TEST_F(OutputFolderTest, IsMadeAndKept) {
    {
        OutputFolder folder(path("a/b"), fault);
        EXPECT_EQ(fault, "");
        write(folder, "deep/in it/x.txt");
        folder.keep();
    }
    EXPECT_EQ(contents(path("a/b/deep/in it/x.txt")), "text");
}

TEST_F(OutputFolderTest, GoesUnlessItIsKept) {
    {
        const OutputFolder folder(path("new"), fault);
        write(folder, "deep/x.txt");
    }
    EXPECT_FALSE(QFileInfo::exists(path("new")));
}

TEST_F(OutputFolderTest, ThatWasThereIsEmptyAgain) {
    QDir().mkpath(path("there"));
    {
        const OutputFolder folder(path("there"), fault);
        EXPECT_EQ(fault, "");
        write(folder, "x.txt");
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
    EXPECT_EQ(fault, path("file") + ": is not a folder");
    EXPECT_TRUE(QFileInfo::exists(path("file")));
    fault.clear();
    { const OutputFolder folder(path("file/below"), fault); }
    EXPECT_EQ(fault, path("file/below") + ": the folder cannot be made: " + QDir::toNativeSeparators(path("file")) +
                         " is not a folder");
}

} // namespace
