#include "support/LogFile.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <windows.h>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <io.h>

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

/// The number that the runtime gives to the next file that is opened.
int nextDescriptor() {
    const int descriptor = ::_open("NUL", _O_RDONLY);
    ::_close(descriptor);
    return descriptor;
}

// Two processes write to one log at once: each line comes behind the other's, as Windows itself looks for the end.
TEST(HeldLog, TakesALineAtItsEndWhereverItsWriterBelievesThatToBe) {
    const TestPc pc;
    const int descriptor = nextDescriptor();
    LogFile log("Test", 2, {});
    const auto file = reinterpret_cast<HANDLE>(::_get_osfhandle(descriptor));
    DWORD written = 0;
    OVERLAPPED atBeginning{};
    ASSERT_TRUE(::WriteFile(file, "late\r\n", 6, &written, &atBeginning));
    EXPECT_EQ(written, 6U);
    EXPECT_TRUE(pc.log("Test").endsWith("\r\nlate\r\n")) << pc.log("Test").toStdString();
    EXPECT_EQ(pc.log("Test").count("LOG CREATED"), 1);
}

} // namespace
