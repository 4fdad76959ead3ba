#include "find/record/ShellLinkWriter.h"
#include "recordings/ShellLink.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

namespace {

QString targetOf(const QByteArray& bytes) {
    const std::optional<Recordings::ShellLink> link = Recordings::parseShellLink(bytes);
    return link ? Recordings::targetOf(*link, {}, "C:/") : QString("no shortcut");
}

TEST(ShellLinkWriter, WritesWhatIsReadAgain) {
    for (const char* const target : {"C:/x.exe", "D:/Spiele/Käferrennen/käfer.exe", "D:/競走クラブ/KeisoClub.exe",
                                     "//server/share/x.exe", "C:/"}) {
        EXPECT_EQ(targetOf(Host::shellLinkTo(QString(target).replace('/', '\\'))), target);
    }
}

TEST(ShellLinkWriter, WritesNothingButTheTarget) {
    EXPECT_EQ(Host::shellLinkTo("C:\\x").size(), 0x4C + 0x24 + 0x11 + 5 + 1 + 10 + 2 + 4);
}

} // namespace
