#include "support/Index.h"

#include "common/AtOnce.h"
#include "support/CriticalSection.h"

#include <gmock/gmock.h>

#include <atomic>
#include <functional>
#include <new>
#include <vector>

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// An index that is built as a test says.
template <class Lock>
class Numbers final : public Index<std::vector<int>, Lock> {
public:
    using Build = std::function<void(std::vector<int>&)>;

    explicit Numbers(const Build& build)
        : Index<std::vector<int>, Lock>("Numbers")
        , m_build(build) {}

private:
    void build(std::vector<int>& entries) override { m_build(entries); }

    Build m_build;
};

template <class Lock>
class IndexTest : public ::testing::Test {};

using Locks = ::testing::Types<std::mutex, CriticalSection, LockGuard::SpinFlag>;
TYPED_TEST_SUITE(IndexTest, Locks);

TYPED_TEST(IndexTest, IsBuiltAtTheFirstRequestOnly) {
    int builds = 0;
    Numbers<TypeParam> index([&builds](std::vector<int>& entries) {
        ++builds;
        entries = {1, 2, 3};
    });
    EXPECT_EQ(builds, 0);
    const std::vector<int>& first = index.entries();
    EXPECT_THAT(first, ElementsAre(1, 2, 3));
    EXPECT_EQ(&index.entries(), &first);
    EXPECT_EQ(builds, 1);
}

TYPED_TEST(IndexTest, ABuildThatFoundNothingIsNotRepeated) {
    int builds = 0;
    Numbers<TypeParam> index([&builds](std::vector<int>&) { ++builds; });
    EXPECT_THAT(index.entries(), IsEmpty());
    EXPECT_THAT(index.entries(), IsEmpty());
    EXPECT_EQ(builds, 1);
}

TYPED_TEST(IndexTest, ABuildThatRanOutOfMemoryIsNotRepeated) {
    int builds = 0;
    Numbers<TypeParam> index([&builds](std::vector<int>& entries) {
        ++builds;
        entries.push_back(1);
        throw std::bad_alloc();
    });
    EXPECT_THROW(index.entries(), std::bad_alloc);
    EXPECT_THAT(index.entries(), ElementsAre(1));
    EXPECT_EQ(builds, 1);
}

TYPED_TEST(IndexTest, SixteenFirstRequestsAtOnceCauseOneBuild) {
    std::atomic<int> builds{0};
    std::atomic<int> complete{0};
    Numbers<TypeParam> index([&builds](std::vector<int>& entries) {
        ++builds;
        for (int entry = 0; entry < 1'000; ++entry) {
            entries.push_back(entry);
        }
    });
    callAtOnce([&] { complete += index.entries().size() == 1'000 ? 1 : 0; });
    EXPECT_EQ(builds, 1);
    EXPECT_EQ(complete, 16);
}

} // namespace
