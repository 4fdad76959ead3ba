#include "recordings/ShellLink.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

#include <QFile>

// Held against what the system's own shell writes.

namespace {

constexpr const char* targets[] = {"C:\\Games\\wal.exe", "D:\\Eigene Spiele\\Käfer.Spiel\\käfer rennt.exe", "D:\\a\\b",
                                   "C:\\x.exe"};

QByteArray contentsOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

TEST(ShellItems, AreReadAsTheShellWritesThem) {
    TestPc pc;
    for (const QString target : targets) {
        pc.file(target);
        pc.shortcut("C:\\Menu\\x.lnk", target);
        const std::optional<Recordings::ShellLink> link = Recordings::parseShellLink(contentsOf("C:\\Menu\\x.lnk"));
        ASSERT_TRUE(link);
        EXPECT_EQ(link->itemPath, target);
        pc.removeFile("C:\\Menu\\x.lnk");
    }
}

} // namespace
