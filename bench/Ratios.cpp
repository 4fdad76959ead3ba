#include "Ratios.h"

#include <cmath>
#include <ostream>

void Ratios::ReportRuns(const std::vector<Run>& runs) {
    for (const Run& run : runs) {
        m_times[run.benchmark_name()] = run.GetAdjustedCPUTime();
    }
    ConsoleReporter::ReportRuns(runs);
}

void Ratios::Finalize() {
    const std::string walk = "/walk";
    std::ostream& out = GetOutputStream();
    out << '\n';
    for (const auto& [name, time] : m_times) {
        const std::size_t length = name.size() < walk.size() ? 0 : name.size() - walk.size();
        const auto search = m_times.find(name.substr(0, length) + "/search");
        if (name.compare(length, std::string::npos, walk) == 0 && search != m_times.end()) {
            out << name.substr(0, length) << ": " << std::lround(time / search->second)
                << " times faster than the walk\n";
        }
    }
}
