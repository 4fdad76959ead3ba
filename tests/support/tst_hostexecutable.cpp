#include "support/HostExecutable.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <QCoreApplication>
#include <QDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>

namespace {

constexpr quint32 longest = 259; // characters, as the end takes one of 260

/// Writes a path of this length, as far as it fits: "C:\xxx…".
void writePath(char16_t* buffer, quint32 length) {
    std::fill_n(buffer, length, u'x');
    std::memcpy(buffer, u"C:\\", 3 * sizeof(char16_t));
}

TEST(HostExecutableTest, IsTheProgramThatRuns) {
    const TestPc pc;
    EXPECT_EQ(hostExecutablePath(), QDir::toNativeSeparators(QCoreApplication::applicationFilePath()));
    EXPECT_EQ(hostExecutableFileName(), QCoreApplication::applicationFilePath().section('/', -1));
    EXPECT_TRUE(hostExecutableFileName().startsWith("tst_support"));
}

TEST(HostExecutableTest, ItsNameIsWhatFollowsTheLastSeparator) {
    const auto host = HostExecutable::from([](char16_t* buffer, quint32) {
        std::memcpy(buffer, u"C:\\Höst\\host.2.exe", sizeof u"C:\\Höst\\host.2.exe");
        return 18U;
    });
    EXPECT_EQ(host.path, "C:\\Höst\\host.2.exe");
    EXPECT_EQ(host.fileName, "host.2.exe");
}

TEST(HostExecutableTest, IsEmptyWhenTheSystemDoesNotTell) {
    const auto host = HostExecutable::from([](char16_t* buffer, quint32 size) {
        writePath(buffer, size);
        return 0U;
    });
    EXPECT_EQ(host.path, "");
    EXPECT_EQ(host.fileName, "");
}

TEST(HostExecutableTest, APathOf259CharactersIsWhole) {
    const auto host = HostExecutable::from([](char16_t* buffer, quint32 size) {
        EXPECT_EQ(size, 260U);
        writePath(buffer, longest);
        buffer[longest] = u'\0';
        return longest;
    });
    EXPECT_EQ(host.path, "C:\\" + QString(256, 'x'));
    EXPECT_EQ(host.fileName, QString(256, 'x'));
}

TEST(HostExecutableTest, APathOf260CharactersIsCut) {
    const auto host = HostExecutable::from([](char16_t* buffer, quint32 size) {
        writePath(buffer, longest);
        buffer[longest] = u'\0';
        return size;
    });
    EXPECT_EQ(host.path, "C:\\" + QString(256, 'x'));
}

TEST(HostExecutableTest, APathThatAnOldSystemCutsWithoutAnEndHas260Characters) {
    const auto host = HostExecutable::from([](char16_t* buffer, quint32 size) {
        writePath(buffer, size);
        return size;
    });
    EXPECT_EQ(host.path, "C:\\" + QString(257, 'x'));
    EXPECT_EQ(host.fileName, QString(257, 'x'));
}

} // namespace
