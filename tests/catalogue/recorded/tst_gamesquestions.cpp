#include "catalogue/GamesExplorerIndex.h"
#include "support/recorded/Observer.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using ::testing::IsEmpty;
using ::testing::Not;

TEST(GamesExplorerQuestionsTest, AnEmptyCatalogueIsNotReadAgain) {
    const TestPc pc;
    GamesExplorerIndex index;
    std::vector<std::string> questions;
    Recorded::setObserver([&questions](const QString& question) { questions.push_back(question.toStdString()); });
    index.entries();
    EXPECT_THAT(questions, Not(IsEmpty()));
    questions.clear();
    index.entries();
    index.findByTitle("X");
    Recorded::setObserver({});
    EXPECT_THAT(questions, IsEmpty());
}

} // namespace
