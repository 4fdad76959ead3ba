#include "allocation/FailingAllocation.h"
#include "core/FindersFactory.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"

#include <gtest/gtest.h>

#include <new>

namespace {

/// Calls `attempt` with its first, second, third … allocation failing, until it makes no more of them. Returns how
/// many attempts ended with std::bad_alloc; any other exception ends the test.
template <class Attempt>
int failEachAllocation(Attempt attempt) {
    int exceptions = 0;
    for (int countdown = 0;; ++countdown) {
        const FailingAllocation failing(countdown);
        try {
            attempt();
        } catch (const std::bad_alloc&) {
            ++exceptions;
            continue;
        }
        if (!failing.hasFailed()) {
            return exceptions;
        }
    }
}

class AllocationTest : public ::testing::Test {
protected:
    TestPc pc;
};

TEST_F(AllocationTest, WithoutMemoryCreateThrowsAndLeaksNothing) {
    { const Finders::FindersFactory first; } // what Qt and the C++ library keep for themselves is made now
    const int exceptions = failEachAllocation([] { const Finders::FindersFactory factory; });
    EXPECT_GT(exceptions, 5) << "does the library under test allocate by the test's operator new?";
    EXPECT_TRUE(FailingAllocation::nothingLeaked());

    pc.clearLogs();
    { const Finders::FindersFactory factory; }
    EXPECT_TRUE(TestPc::log("Quorvan.Finders").contains("LOG CREATED")) << "memory is back, and so is the log";
}

} // namespace
