#include "support/BuiltOnce.h"
#include "support/CriticalSection.h"
#include "support/LockGuard.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <new>
#include <thread>
#include <vector>

namespace {

/// Counts in steps that only a lock makes whole.
template <class Lock>
int countWith(Lock& lock, int threads, int rounds) {
    int count = 0;
    std::vector<std::thread> all;
    for (int i = 0; i < threads; ++i) {
        all.emplace_back([&] {
            for (int round = 0; round < rounds; ++round) {
                const LockGuard guard(lock);
                const int before = count;
                std::this_thread::yield();
                count = before + 1;
            }
        });
    }
    for (std::thread& thread : all) {
        thread.join();
    }
    return count;
}

TEST(LockGuardTest, ACriticalSectionLetsOneThreadInAtATime) {
    CriticalSection section;
    EXPECT_EQ(countWith(section, 4, 250), 1'000);
}

TEST(LockGuardTest, ASpinFlagLetsOneThreadInAtATime) {
    LockGuard::SpinFlag flag{0};
    EXPECT_EQ(countWith(flag, 2, 100), 200);
    EXPECT_EQ(flag.load(), 0);
}

TEST(LockGuardTest, AMutexLetsOneThreadInAtATime) {
    std::mutex mutex;
    EXPECT_EQ(countWith(mutex, 4, 250), 1'000);
}

TEST(LockGuardTest, ASpinFlagIsOneWhileItIsHeld) {
    LockGuard::SpinFlag flag{0};
    {
        const LockGuard guard(flag);
        EXPECT_EQ(flag.load(), 1);
    }
    EXPECT_EQ(flag.load(), 0);
}

TEST(LockGuardTest, AMutexIsTakenWhileItIsHeld) {
    std::mutex mutex;
    const auto isFree = [&mutex] {
        bool free = false;
        std::thread([&] {
            free = mutex.try_lock();
            if (free) {
                mutex.unlock();
            }
        }).join();
        return free;
    };
    {
        const LockGuard guard(mutex);
        EXPECT_FALSE(isFree());
    }
    EXPECT_TRUE(isFree());
}

TEST(LockGuardTest, ItsThreadMayTakeACriticalSectionAgain) {
    CriticalSection section;
    const LockGuard outer(section);
    const LockGuard inner(section);
    SUCCEED() << "without waiting for itself";
}

template <class Lock>
class BuiltOnceTest : public ::testing::Test {};

using Locks = ::testing::Types<std::mutex, CriticalSection, LockGuard::SpinFlag>;
TYPED_TEST_SUITE(BuiltOnceTest, Locks);

TYPED_TEST(BuiltOnceTest, BuildsAtTheFirstRequestOnly) {
    BuiltOnce<std::vector<int>, TypeParam> list;
    int builds = 0;
    const auto build = [&builds](std::vector<int>& entries) {
        ++builds;
        entries = {1, 2, 3};
    };
    const std::vector<int>& first = list.entries(build);
    EXPECT_THAT(first, ::testing::ElementsAre(1, 2, 3));
    EXPECT_EQ(&list.entries(build), &first);
    EXPECT_EQ(builds, 1);
}

TYPED_TEST(BuiltOnceTest, DoesNotRepeatABuildThatFoundNothing) {
    BuiltOnce<std::vector<int>, TypeParam> list;
    int builds = 0;
    const auto build = [&builds](std::vector<int>&) { ++builds; };
    EXPECT_TRUE(list.entries(build).empty());
    EXPECT_TRUE(list.entries(build).empty());
    EXPECT_EQ(builds, 1);
}

TYPED_TEST(BuiltOnceTest, DoesNotRepeatABuildThatRanOutOfMemory) {
    BuiltOnce<std::vector<int>, TypeParam> list;
    EXPECT_THROW(list.entries([](std::vector<int>& entries) {
        entries.push_back(1);
        throw std::bad_alloc();
    }),
                 std::bad_alloc);
    EXPECT_THAT(list.entries([](std::vector<int>&) { FAIL() << "built again"; }), ::testing::ElementsAre(1));
}

TYPED_TEST(BuiltOnceTest, SixteenFirstRequestsAtOnceCauseOneBuild) {
    BuiltOnce<std::vector<int>, TypeParam> list;
    std::atomic<int> builds{0};
    std::atomic<int> complete{0};
    std::vector<std::thread> threads;
    for (int i = 0; i < 16; ++i) {
        threads.emplace_back([&] {
            const std::vector<int>& entries = list.entries([&builds](std::vector<int>& building) {
                ++builds;
                for (int entry = 0; entry < 1'000; ++entry) {
                    building.push_back(entry);
                }
            });
            complete += entries.size() == 1'000 ? 1 : 0;
        });
    }
    for (std::thread& thread : threads) {
        thread.join();
    }
    EXPECT_EQ(builds, 1);
    EXPECT_EQ(complete, 16);
}

} // namespace
