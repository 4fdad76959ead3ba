#include "support/LogFile.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>

namespace {

// Only Windows keeps a file that is open from being moved.
TEST(HeldLog, GrowsOnWhileItsBackupsMove) {
    constexpr qint64 limit = 10'485'760;
    const TestPc pc;
    const QString path = pc.logPath("Test");
    LogFile holder("Test", 2, {});
    ASSERT_TRUE(QFile::resize(path, limit + 1));
    QFile backup(path + ".bak");
    ASSERT_TRUE(backup.open(QIODevice::WriteOnly));
    backup.close();

    LogFile second("Test", 2, {});
    second.writeLine('A', "second");
    holder.writeLine('A', "holder");
    EXPECT_FALSE(QFileInfo::exists(path + ".bak"));
    EXPECT_TRUE(QFileInfo::exists(path + ".ba2"));
    EXPECT_GT(QFileInfo(path).size(), limit);
    const QByteArray log = pc.log("Test");
    EXPECT_EQ(log.count("LOG CREATED"), 2);
    EXPECT_EQ(log.count("A: second\r\n"), 1);
    EXPECT_EQ(log.count("A: holder\r\n"), 1);
}

} // namespace
