#include "support/FirstOffered.h"

#include "common/AtOnce.h"

#include <gtest/gtest.h>

#include <atomic>
#include <memory>

namespace {

/// Counts those that are there.
class Counted {
public:
    explicit Counted(std::atomic<int>& count)
        : m_count(count) {
        ++m_count;
    }

    ~Counted() { --m_count; }

private:
    Q_DISABLE_COPY_MOVE(Counted)

    std::atomic<int>& m_count;
};

class FirstOfferedTest : public ::testing::Test {
protected:
    std::unique_ptr<Counted> made() { return std::make_unique<Counted>(count); }

    std::atomic<int> count{0};
};

TEST_F(FirstOfferedTest, KeepsTheFirstAndDestroysTheOthers) {
    {
        FirstOffered<Counted> kept;
        EXPECT_EQ(kept.get(), nullptr);
        auto first = made();
        Counted* const expected = first.get();
        EXPECT_EQ(kept.offer(std::move(first)), expected);
        EXPECT_EQ(kept.get(), expected);
        EXPECT_EQ(kept.offer(made()), expected);
        EXPECT_EQ(kept.get(), expected);
        EXPECT_EQ(count, 1);
    }
    EXPECT_EQ(count, 0);
}

TEST_F(FirstOfferedTest, TakesNothingForNoOffer) {
    FirstOffered<Counted> kept;
    EXPECT_EQ(kept.offer(nullptr), nullptr);
    auto first = made();
    Counted* const expected = first.get();
    EXPECT_EQ(kept.offer(std::move(first)), expected);
    EXPECT_EQ(kept.offer(nullptr), expected);
}

TEST_F(FirstOfferedTest, MakesOneOnlyWhereNoneIsKept) {
    FirstOffered<Counted> kept;
    Counted& first = kept.getOrOffer([this] { return made(); });
    Counted& second = kept.getOrOffer([] { return std::unique_ptr<Counted>(); });
    EXPECT_EQ(&first, &second);
    EXPECT_EQ(kept.get(), &first);
}

TEST_F(FirstOfferedTest, SixteenThreadsThatOfferAtOnceGetTheSameOne) {
    {
        FirstOffered<Counted> kept;
        std::atomic<int> others{0};
        callAtOnce([&] {
            Counted* const got = kept.offer(made());
            others += got != nullptr && got == kept.get() ? 0 : 1;
        });
        EXPECT_EQ(others, 0);
        EXPECT_EQ(count, 1);
    }
    EXPECT_EQ(count, 0);
}

} // namespace
