#include "catalogue/GamesExplorerIndex.h"

#include "common/QtPrinters.h"
#include "common/recorded/QuestionsTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::IsEmpty;
using ::testing::Not;

class GamesExplorerQuestionsTest : public QuestionsTest {};

TEST_F(GamesExplorerQuestionsTest, AnEmptyCatalogueIsNotReadAgain) {
    GamesExplorerIndex index;
    EXPECT_THAT(questionsOf([&] { index.entries(); }), Not(IsEmpty()));
    EXPECT_THAT(questionsOf([&] {
                    index.entries();
                    index.findByTitle("X");
                }),
                IsEmpty());
}

} // namespace
