#pragma once

#include <benchmark/benchmark.h>
#include <map>
#include <string>
#include <vector>

namespace bench {

/// What one benchmark may take in proportion to another, both in one run of one program.
struct Target
{
    std::string what;
    std::string floor;
    double atMost; ///< time of `what` by that of `floor`; 0 for a ratio that is only reported
};

/// Prints the ratios that were asked for behind the usual table.
class RatioReporter final : public benchmark::ConsoleReporter
{
public:
    explicit RatioReporter(std::vector<Target> targets) : m_targets(std::move(targets)) {}

    void ReportRuns(const std::vector<Run>& runs) override;
    void Finalize() override;

    /// Whether no target of those that ran was missed.
    bool allReached() const { return m_missed == 0; }

private:
    std::vector<Target> m_targets;
    std::map<std::string, double> m_times; ///< the medians where there are repetitions
    int m_missed = 0;
};

/// Runs the benchmarks of the program and prints their ratios.
/// @return the exit code: 1 when a target was missed, 2 for a wrong argument.
int run(int argc, char** argv, std::vector<Target> targets);

} // namespace bench
