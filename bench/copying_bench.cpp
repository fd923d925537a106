// Copying a package, by itself and held by a value of the type system, beside copying its containers.
#include "bare_package.hpp"
#include "manifest_sizes.hpp"
#include "ratio_reporter.hpp"

#include <zu/any_value.hpp>

namespace {

zu::PackageInfo package(const benchmark::State& state) { return bench::package(static_cast<int>(state.range(0))); }

void copyContainers(benchmark::State& state)
{
    const bench::BarePackage source = bench::bare(package(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(bench::BarePackage(source));
}

void copyPackage(benchmark::State& state)
{
    const zu::PackageInfo source = package(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::PackageInfo(source));
}

void copyAnyValue(benchmark::State& state)
{
    const zu::AnyValue source = zu::AnyValue::from(package(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::AnyValue(source));
}

BENCHMARK(copyContainers)->Apply(&bench::tenfold);
BENCHMARK(copyPackage)->Apply(&bench::tenfold);
BENCHMARK(copyAnyValue)->Apply(&bench::tenfold);

} // namespace

int main(int argc, char** argv)
{
    // Only reported: the caches have a say in the times. What is judged is the instructions.
    std::vector<bench::Target> targets;
    for (const char* behaviors : {"/1", "/10", "/100", "/1000"}) {
        const std::string floor = std::string("copyContainers") + behaviors;
        targets.push_back({std::string("copyPackage") + behaviors, floor, 0});
        targets.push_back({std::string("copyAnyValue") + behaviors, floor, 0});
    }
    return bench::run(argc, argv, std::move(targets));
}
