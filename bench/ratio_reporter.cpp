#include "ratio_reporter.hpp"

#include <algorithm>
#include <iomanip>

namespace bench {

void RatioReporter::ReportRuns(const std::vector<Run>& runs)
{
    for (const Run& run : runs) {
        if (run.run_type == Run::RT_Iteration || run.aggregate_name == "median")
            m_times[run.run_name.str()] =
                run.run_name.time_type.empty() ? run.GetAdjustedCPUTime() : run.GetAdjustedRealTime();
    }
    ConsoleReporter::ReportRuns(runs);
}

void RatioReporter::Finalize()
{
    std::size_t longest = 0;
    for (const Target& target : m_targets)
        longest = std::max({longest, target.what.size(), target.floor.size()});
    const int nameWidth = static_cast<int>(longest) + 2;
    auto& out = GetOutputStream();
    out << '\n'
        << std::left << std::setw(nameWidth) << "ratio" << std::setw(nameWidth) << "to"
        << "is      target\n";
    for (const Target& target : m_targets) {
        const auto time = m_times.find(target.what);
        const auto floor = m_times.find(target.floor);
        if (time == m_times.end() || floor == m_times.end())
            continue;
        const double ratio = time->second / floor->second;
        out << std::setw(nameWidth) << target.what << std::setw(nameWidth) << target.floor << std::setw(8)
            << std::setprecision(3) << ratio;
        if (target.atMost > 0) {
            const bool reached = ratio <= target.atMost;
            m_missed += reached ? 0 : 1;
            out << target.atMost << (reached ? "" : "  MISSED");
        }
        out << '\n';
    }
    ConsoleReporter::Finalize();
}

int run(int argc, char** argv, std::vector<Target> targets)
{
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    RatioReporter reporter(std::move(targets));
    benchmark::RunSpecifiedBenchmarks(&reporter);
    return reporter.allReached() ? 0 : 1;
}

} // namespace bench
