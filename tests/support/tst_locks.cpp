#include "support/CriticalSection.h"
#include "support/LockGuard.h"

#include <gtest/gtest.h>

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

} // namespace
