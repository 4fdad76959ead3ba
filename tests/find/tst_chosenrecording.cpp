#include "find/answers/ChosenRecording.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QDir>

namespace {

using Find::describeProblems;

std::string describe(const char* folder, const QString& file, int line) {
    const QString given = QString::fromUtf8(folder);
    return describeProblems(given, {{file, line, "broken"}}).front().text().replace('\\', '/').toStdString();
}

QString absolute(const char* path) {
    return QDir::current().absoluteFilePath(QString::fromUtf8(path));
}

TEST(DescribeProblems, NameTheFileAsTheFolderWasGiven) {
    EXPECT_EQ(describe("some/pc", absolute("some/pc/pc.json"), 3), "some/pc/pc.json:3: broken");
    EXPECT_EQ(describe("./pc/", absolute("pc/registry/a.reg"), 12), "./pc/registry/a.reg:12: broken");
    EXPECT_EQ(describe("../pc", absolute("../pc/pc.json"), 3), "../pc/pc.json:3: broken");
    EXPECT_EQ(describe("Käfer", absolute("Käfer/王.reg"), 3), "Käfer/王.reg:3: broken");
}

TEST(DescribeProblems, ARelativeFileWithinTheFolderIsNotWithinItTwice) {
    EXPECT_EQ(describe("some/pc", "some/pc/pc.json", 3), "some/pc/pc.json:3: broken");
    EXPECT_EQ(describe("pc.json", "pc.json", 3), "pc.json:3: broken");
}

TEST(DescribeProblems, AnAbsoluteFolderGivesAbsoluteFiles) {
    const QString folder = QDir::tempPath() + "/pc";
    const QString file = folder + "/pc.json";
    EXPECT_EQ(describe(folder.toUtf8().constData(), file, 3), file.toStdString() + ":3: broken");
}

TEST(DescribeProblems, AFaultOutsideALineHasNoLine) {
    EXPECT_EQ(describe("pc", absolute("pc/pc.json"), 0), "pc/pc.json: broken");
    EXPECT_EQ(describe("some/pc", absolute("some/pc"), 0), "some/pc: broken");
}

TEST(DescribeProblems, AFileElsewhereKeepsItsName) {
    const QString file = QDir::rootPath() + "elsewhere/pc.json";
    EXPECT_EQ(describe("pc", file, 1), file.toStdString() + ":1: broken");
}

TEST(DescribeProblems, KeepTheirOrder) {
    const auto complaints = describeProblems("pc", {{absolute("pc/b"), 2, "x"}, {absolute("pc/a"), 1, "y"}});
    ASSERT_EQ(complaints.size(), 2U);
    EXPECT_EQ(complaints.front().message, "x");
    EXPECT_EQ(complaints.back().message, "y");
}

} // namespace
