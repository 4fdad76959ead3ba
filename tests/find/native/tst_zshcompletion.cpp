#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QProcess>

namespace {

/// In a zsh on a terminal of its own that was set up by $1, types $2 and presses Tab; reads on until it shows $3.
constexpr const char* script = R"(
    zmodload zsh/zpty
    zpty -b shell zsh -f -i
    zpty -w shell "PS1='> '; $1; echo READ''Y"
    zpty -r shell shown '*READY*'
    zpty -w -n shell "$2"$'\t'
    zpty -r shell shown "*$3*"
    zpty -d shell)";

/// Expects that zsh, set up so, adds this to what is typed.
void expectCompletion(const QString& setUp, const QString& typed, const QString& added) {
    QProcess zsh;
    zsh.start("zsh", {"-f", "-c", script, "zsh", setUp, typed, added});
    constexpr int mostMs = 30'000;
    EXPECT_TRUE(zsh.waitForFinished(mostMs)) << typed.toStdString() << " with " << setUp.toStdString();
    zsh.kill();
    zsh.waitForFinished();
    EXPECT_EQ(QString::fromUtf8(zsh.readAllStandardError()), "");
}

TEST(ZshCompletion, CompletesCommandsAndOptions) {
    const QString folder = "fpath=(" LURULUDRI_DOCS "/shell $fpath); autoload -Uz compinit; compinit -u -D";
    const QString sourced = "autoload -Uz compinit; compinit -u -D; source " LURULUDRI_DOCS "/shell/_luruludri-find";
    for (const QString& setUp : {folder, sourced}) {
        expectCompletion(setUp, "luruludri-find report --k", "eep-names");
        expectCompletion(setUp, "luruludri-find forget --pl", "ugin");
    }
}

} // namespace
