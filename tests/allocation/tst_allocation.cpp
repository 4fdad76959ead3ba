#include "allocation/FailingAllocation.h"
#include "core/GameLocation.h"
#include "core/MultiFinder.h"
#include "core/plugin/FindersFactory.h"

#include "common/QtPrinters.h"
#include "common/TestPc.h"
#include "platform/Registry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
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

class NoFinder final : public IGameFinder {
public:
    bool find(GameLocation&) override { return false; }

    QString userLocation() override { return {}; }

    void setUserLocation(const QString&) override {}
};

using Eleven = std::array<std::unique_ptr<IGameFinder>, 11>;

/// Null when memory runs out after so many allocations.
std::unique_ptr<IGameFinder> combine(Eleven& finders, int countdown) {
    const FailingAllocation failing(countdown);
    try {
        return std::make_unique<Finders::MultiFinder>(
            std::move(finders[0]), std::move(finders[1]), std::move(finders[2]), std::move(finders[3]),
            std::move(finders[4]), std::move(finders[5]), std::move(finders[6]), std::move(finders[7]),
            std::move(finders[8]), std::move(finders[9]), std::move(finders[10]));
    } catch (const std::bad_alloc&) {
        return nullptr;
    }
}

TEST(AllocationTest, AMultiFinderThatCanNotBeMadeTakesNoFinder) {
    int failures = 0;
    for (bool isMade = false; !isMade; failures += isMade ? 0 : 1) {
        Eleven finders;
        std::generate(finders.begin(), finders.end(), std::make_unique<NoFinder>);
        isMade = combine(finders, failures) != nullptr;
        EXPECT_EQ(std::count(finders.begin(), finders.end(), nullptr), isMade ? 11 : 0);
    }
    EXPECT_EQ(failures, 2) << "the finder itself, and the place for all its members";
}

} // namespace
