#include "find/record/OutputFile.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace {

using Find::OutputFile;

class OutputFileTest : public ::testing::Test {
protected:
    static QString native(const QString& path) { return QDir::toNativeSeparators(path); }

    QString path(const QString& name) const { return m_folder.filePath(name); }

    QString nameFor(const QString& wanted) {
        fault.clear();
        return OutputFile(wanted, QLatin1String(".json"), fault).name();
    }

    QStringList files() const { return QDir(m_folder.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot); }

    const QString nameOfTheDay = "luruludri-pc-" + QDate::currentDate().toString(Qt::ISODate) + ".json";
    QString fault;

private:
    QTemporaryDir m_folder;
};

TEST_F(OutputFileTest, IsNamedAsTheUserSaidWithItsEnding) {
    EXPECT_EQ(nameFor(path("my-pc.json")), native(path("my-pc.json")));
    EXPECT_EQ(nameFor(path("my-pc.JSON")), native(path("my-pc.JSON")));
    EXPECT_EQ(nameFor(path("my-pc")), native(path("my-pc.json")));
    EXPECT_EQ(fault, "");
}

TEST_F(OutputFileTest, OfAPageHasTheEndingOfOne) {
    EXPECT_EQ(OutputFile(path("my-pc.json"), QLatin1String(".html"), fault).name(), native(path("my-pc.json.html")));
    EXPECT_TRUE(OutputFile(path(""), QLatin1String(".html"), fault).name().endsWith(".html"));
}

TEST_F(OutputFileTest, IsNamedAfterTheDayWhereTheUserNamedAFolderOrNothing) {
    EXPECT_EQ(nameFor(path("")), native(path(nameOfTheDay)));
    EXPECT_EQ(fault, "");
    EXPECT_EQ(nameFor(path("none/")), native(path("none/" + nameOfTheDay)));
    EXPECT_EQ(fault, native(path("none/" + nameOfTheDay)) + ": the file cannot be made: there is no folder " +
                         QDir::toNativeSeparators(path("none")));
    EXPECT_TRUE(nameFor("").endsWith(nameOfTheDay));
}

TEST_F(OutputFileTest, IsThereWhenItIsComplete) {
    OutputFile file(path("x"), QLatin1String(".json"), fault);
    EXPECT_EQ(files(), QStringList());
    EXPECT_EQ(file.write("all of it"), "");
    EXPECT_EQ(files(), QStringList{"x.json"});
    QFile written(path("x.json"));
    ASSERT_TRUE(written.open(QIODevice::ReadOnly));
    EXPECT_EQ(written.readAll(), "all of it");
}

TEST_F(OutputFileTest, IsANewOneEachTimeWhereTheUserNamedNone) {
    ASSERT_EQ(OutputFile(path(""), QLatin1String(".json"), fault).write("first"), "");
    QString second = nameOfTheDay;
    second.insert(second.size() - 5, "-2");
    EXPECT_EQ(nameFor(path("")), native(path(second)));
    EXPECT_EQ(fault, "");
}

TEST_F(OutputFileTest, ThatIsThereIsLeftAlone) {
    ASSERT_EQ(OutputFile(path("x.json"), QLatin1String(".json"), fault).write("mine"), "");
    EXPECT_EQ(fault, "");
    nameFor(path("x"));
    EXPECT_EQ(fault, native(path("x.json")) + ": the file exists already");
}

TEST_F(OutputFileTest, ThatCannotBeWrittenIsNotThere) {
    OutputFile file(path("x.json"), QLatin1String(".json"), fault);
    QDir().mkdir(path("x.json")); // in the meantime
    EXPECT_TRUE(file.write("x").startsWith(native(path("x.json")) + ": the file cannot be written: "));
    EXPECT_EQ(files(), QStringList{"x.json"});
}

} // namespace
