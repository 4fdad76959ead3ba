#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <QProcess>
#include <QTemporaryDir>

namespace {

/// What bash offers for the last word of a command line, in a folder with one file "my.json".
QStringList offered(const QString& words) {
    QTemporaryDir folder;
    QFile file(folder.filePath("my.json"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    QProcess bash;
    bash.setWorkingDirectory(folder.path());
    bash.start(
        "bash",
        {"-c", "source '" LURULUDRI_DOCS "/shell/luruludri-find.bash'; COMP_WORDS=(luruludri-find " + words +
                   "); COMP_CWORD=$((${#COMP_WORDS[@]} - 1)); _luruludri_find; printf '%s\\n' \"${COMPREPLY[@]}\""});
    EXPECT_TRUE(bash.waitForFinished());
    EXPECT_EQ(QString::fromUtf8(bash.readAllStandardError()), "");
    return QString::fromUtf8(bash.readAllStandardOutput()).split('\n', Qt::SkipEmptyParts);
}

TEST(BashCompletion, OffersCommandsOptionsAndFiles) {
    EXPECT_EQ(offered("re"), (QStringList{"record", "report"}));
    EXPECT_EQ(offered("--j"), QStringList{"--json"});
    EXPECT_EQ(offered("m"), (QStringList{"manual", "my.json"}));
}

TEST(BashCompletion, OffersWhatTheCommandTakes) {
    EXPECT_EQ(offered("record --"), (QStringList{"--help", "--keep-names", "--pc", "--plugin"}));
    EXPECT_EQ(offered("--json explain --a"), QStringList{"--all"});
    EXPECT_EQ(offered("completion z"), QStringList{"zsh"});
    EXPECT_EQ(offered("--pc m"), (QStringList{"manual", "my.json"}));
    EXPECT_EQ(offered("find --game m"), QStringList()) << "a game's name is none of a file";
}

} // namespace
