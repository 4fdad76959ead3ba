#include "common/EveryIndex.h"
#include "common/recorded/QuestionsTest.h"

#include <gmock/gmock.h>

namespace {

using ::testing::IsEmpty;
using ::testing::Not;

template <class Index>
class IndexQuestionsTest : public QuestionsTest {};

TYPED_TEST_SUITE(IndexQuestionsTest, EveryIndex);

TYPED_TEST(IndexQuestionsTest, AnIndexReadsThePcOnce) {
    this->pc.folder("C:\\Menu");
    this->pc.shellFolder(Platform::csidlStartMenu, "C:\\Menu");
    for (const int games : {0, 1}) {
        TypeParam index;
        EXPECT_THAT(this->questionsOf([&] { EXPECT_EQ(static_cast<int>(index.entries().size()), games); }),
                    Not(IsEmpty()));
        EXPECT_THAT(this->questionsOf([&] { EXPECT_EQ(found(index, gameNamed(1)), games); }), IsEmpty());
        installForEveryIndex(this->pc, gameNamed(1));
    }
}

} // namespace
