#include "catalogue/GamesExplorerIndex.h"

#include "common/Games.h"
#include "common/QtPrinters.h"
#include "common/recorded/QuestionsTest.h"
#include "common/recorded/RecordingFolder.h"
#include "recordings/Recording.h"

#include <gtest/gtest.h>

namespace {

using GamesExplorerQuestionsTest = QuestionsTest;

TEST_F(GamesExplorerQuestionsTest, AKeyThatIsListedAndDoesNotOpenIsAnEntryAllTheSame) {
    addGame(pc, {"{a}", "Title", "C:\\X\\x.exe", "C:\\X"});
    const RecordingFolder empty;
    Recorded::setObserver([&empty](const QString& question) {
        if (question.endsWith("{a}")) { // it goes between the listing and its opening
            qputenv(Recordings::environmentVariable, empty.path({}));
        }
    });
    GamesExplorerIndex index;
    ASSERT_EQ(index.entries().size(), 1U);
    EXPECT_EQ(index.entries().front().keyName, "{a}");
    EXPECT_EQ(index.entries().front().title, "");
    EXPECT_EQ(index.entries().front().appExePath, "");
    EXPECT_EQ(index.entries().front().configApplicationPath, "");
    EXPECT_EQ(index.findByTitle("").size(), 1U);
}

} // namespace
