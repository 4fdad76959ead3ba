#pragma once

/// While one of these lives, one allocation of its thread fails, by operator new or by malloc and its like: the one
/// after the first `countdown`.
class FailingAllocation {
public:
    explicit FailingAllocation(int countdown);
    ~FailingAllocation();

    /// Whether the allocation that was to fail came.
    bool hasFailed() const;

    /// Whether no memory has been lost so far; always true in builds without a leak checker.
    static bool nothingLeaked();

    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
};
