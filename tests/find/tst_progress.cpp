#include "find/terminal/Progress.h"

#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace {

using Find::Progress;

/// A progress with a clock that the test sets, and the lines that it showed.
struct Shown {
    explicit Shown(int width)
        : progress(
              "asking", width, [this] { return now; }, [this](const QString& line) { lines.append(line); }) {}

    void stepAt(qint64 time, int done, int total, const QString& what) {
        now = time;
        progress.step(done, total, what);
    }

    qint64 now = 7000;
    QStringList lines;
    Progress progress;
};

TEST(Progress, ALongTaskShowsItsStepsAndErasesTheLast) {
    Shown shown(80);
    shown.stepAt(7500, 12, 340, "Käferrennen");
    shown.stepAt(9000, 13, 340, "Wal");
    EXPECT_EQ(shown.lines, (QStringList{"asking 12/340: Käferrennen", "asking 13/340: Wal"}));
    shown.progress.finish();
    shown.progress.finish();
    shown.stepAt(99999, 14, 340, "Qualle");
    EXPECT_EQ(shown.lines, (QStringList{"asking 12/340: Käferrennen", "asking 13/340: Wal", ""}));
}

TEST(Progress, NothingIsShownInTheFirstHalfSecond) {
    Shown shown(80);
    shown.stepAt(7000, 1, 2, "a");
    shown.stepAt(7499, 2, 2, "b");
    shown.progress.finish();
    EXPECT_EQ(shown.lines, QStringList());
}

TEST(Progress, ThereAreAtMostTenLinesASecond) {
    Shown shown(80);
    for (int time = 7000; time <= 8500; ++time) {
        shown.stepAt(time, time - 7000, 1500, "x");
    }
    EXPECT_EQ(shown.lines.size(), 11);
    EXPECT_EQ(shown.lines.value(1), "asking 600/1500: x");
}

TEST(Progress, WithoutATotalTheNumberStandsAlone) {
    Shown shown(80);
    shown.stepAt(8000, 12, 0, "HKEY_LOCAL_MACHINE");
    EXPECT_EQ(shown.lines, QStringList{"asking 12: HKEY_LOCAL_MACHINE"});
}

TEST(Progress, WithoutATerminalNothingIsShown) {
    Shown shown(0);
    shown.stepAt(9000, 1, 2, "a");
    shown.progress.finish();
    EXPECT_EQ(shown.lines, QStringList());
}

TEST(Progress, ItsEndErasesTheLine) {
    QStringList lines;
    qint64 now = 0;
    {
        Progress progress(
            "asking", 80, [&] { return now; }, [&](const QString& line) { lines.append(line); });
        now = 600;
        progress.step(1, 2, "a");
    }
    EXPECT_EQ(lines, (QStringList{"asking 1/2: a", ""}));
}

TEST(Progress, LinesStayOnTheirLine) {
    Shown shown(24);
    shown.stepAt(8000, 1, 2, "a\nb\u001B[1m");
    shown.stepAt(9000, 1, 2, "12345678901");
    shown.stepAt(10000, 1, 2, "123456789012");
    shown.stepAt(11000, 1, 2, "競走クラブ競走クラブ");
    EXPECT_EQ(shown.lines, (QStringList{"asking 1/2: a b [1m", "asking 1/2: 12345678901", "asking 1/2: 12345678...",
                                        "asking 1/2: 競走クラ..."}));
}

} // namespace
