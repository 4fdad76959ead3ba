#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints the results as usual and, at the end, how many times faster each "NAME/search" was than its "NAME/walk" in
/// this very run, which tells more than the times of two runs. By the processor's time, as others use the machine too.
class Ratios : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

private:
    std::map<std::string, double> m_times; ///< by the benchmark's name
};
