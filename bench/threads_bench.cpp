// Reading different files on two threads at once, beside reading one on one. Wants two idle processors.
#include "manifest_file.hpp"
#include "ratio_reporter.hpp"

#include <thread>

namespace {

constexpr int k_behaviorsRead = 100;
constexpr int k_reads = 20;

void readAgainAndAgain(const bench::ManifestFile& manifest)
{
    const std::string path = manifest.name().toStdString();
    for (int i = 0; i < k_reads; ++i) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(package.loadFromManifestFile(path));
    }
}

void readOnOneThread(benchmark::State& state)
{
    const bench::ManifestFile manifest(k_behaviorsRead);
    for (auto _ : state)
        readAgainAndAgain(manifest);
}

void readOnTwoThreads(benchmark::State& state)
{
    const bench::ManifestFile manifest(k_behaviorsRead);
    const bench::ManifestFile other(k_behaviorsRead);
    for (auto _ : state) {
        std::thread second([&other] { readAgainAndAgain(other); });
        readAgainAndAgain(manifest);
        second.join();
    }
}

BENCHMARK(readOnOneThread)->UseRealTime();
BENCHMARK(readOnTwoThreads)->UseRealTime();

/// How many times as much two threads read in the same time.
constexpr double k_leastThroughput = 1.85;

} // namespace

int main(int argc, char** argv)
{
    return bench::run(argc, argv, {{"readOnTwoThreads/real_time", "readOnOneThread/real_time", 2 / k_leastThroughput}});
}
