#include "allocation/FailingAllocation.h"
#include "allocation/SystemMemory.h"

#include "common/EveryIndex.h"
#include "common/PcTest.h"
#include "common/QtPrinters.h"

#include <gtest/gtest.h>

#include <new>

namespace {

/// A PC with three entries for each index.
template <class Index>
class IndexesWithoutMemoryTest : public PcTest {
protected:
    IndexesWithoutMemoryTest() {
        for (int i = 0; i < games; ++i) {
            installForEveryIndex(pc, gameNamed(i));
        }
    }

    /// False when the build made no more allocations than it was granted.
    static bool failsToBuild(Index& index, int countdown) {
        bool hasFailed = false;
        SystemMemory::run([&] {
            const FailingAllocation failing(countdown);
            try {
                index.entries();
            } catch (const std::bad_alloc&) {
            }
            hasFailed = failing.hasFailed();
        });
        return hasFailed;
    }

    /// How many of the games are found.
    static int foundGames(Index& index) {
        int count = 0;
        for (int i = 0; i < games; ++i) {
            count += found(index, gameNamed(i));
        }
        return count;
    }

    static constexpr int games = 3;
};

TYPED_TEST_SUITE(IndexesWithoutMemoryTest, EveryIndex);

/// Builds an index with its first, second, third … allocation failing, until it makes no more of them. What it lists
/// after each, which is never more than is listed with memory, is found.
TYPED_TEST(IndexesWithoutMemoryTest, WhatAnIndexHasIsFound) {
    TypeParam whole;
    ASSERT_EQ(this->foundGames(whole), this->games);
    int parts = 0;
    bool hasFailed = true;
    for (int countdown = 0; hasFailed; ++countdown) {
        TypeParam index;
        hasFailed = this->failsToBuild(index, countdown);
        const auto listed = static_cast<int>(index.entries().size());
        ASSERT_LE(listed, this->games);
        ASSERT_EQ(this->foundGames(index), listed) << "after allocation " << countdown;
        ASSERT_TRUE(hasFailed || listed == this->games);
        parts += listed > 0 && listed < this->games ? 1 : 0;
    }
    EXPECT_GT(parts, 0) << "some build has ended half-way";
    EXPECT_TRUE(FailingAllocation::nothingLeaked());
}

} // namespace
