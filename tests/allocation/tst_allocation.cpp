#include "allocation/FailingAllocation.h"
#include "core/plugin/FindersFactory.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"

#include <gtest/gtest.h>

#include <memory>
#include <new>

namespace {

/// Makes and destroys a factory with its first, second, third … allocation failing, until it makes no more of them.
/// Calls `prepare` before each attempt and keeps what it returns until after it. Returns how many attempts ended with
/// std::bad_alloc; any other exception ends the test.
template <class Prepare>
int failEachAllocation(Prepare prepare) {
    int exceptions = 0;
    for (int countdown = 0;; ++countdown) {
        [[maybe_unused]] const auto prepared = prepare();
        const FailingAllocation failing(countdown);
        try {
            const Finders::FindersFactory factory;
        } catch (const std::bad_alloc&) {
            ++exceptions;
            continue;
        }
        if (!failing.hasFailed()) {
            return exceptions;
        }
    }
}

TEST(AllocationTest, WithoutMemoryCreateThrowsAndLeaksNothing) {
    const TestPc pc;
    { const Finders::FindersFactory first; } // what Qt and the C++ library keep for themselves is made now
    const int exceptions = failEachAllocation([] { return nullptr; });
    EXPECT_GE(exceptions, 3) << "does the library under test allocate by the test's operator new?";
    EXPECT_TRUE(FailingAllocation::nothingLeaked());

    TestPc::clearLogs();
    { const Finders::FindersFactory factory; }
    EXPECT_TRUE(TestPc::log("Quorvan.Finders").contains("LOG CREATED")) << "memory is back, and so is the log";
}

TEST(AllocationTest, TheFirstCreateOfAllBearsItAsWell) {
    const int exceptions = failEachAllocation([] {
        auto pc = std::make_unique<TestPc>(); // one that was never asked before
        pc->number({Platform::RootKey::CurrentUser, "Software\\Veltrane\\Quorvan.Finders"}, "LogLevel", 1);
        return pc;
    });
    EXPECT_GE(exceptions, 3);
    EXPECT_TRUE(FailingAllocation::nothingLeaked());
}

} // namespace
