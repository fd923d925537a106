// What a program does with packages by way of the type system, beside doing it by their own classes.
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <zu/any_value.hpp>

#include <sstream>

namespace {

constexpr int k_behaviorsInValues = 10;

void referToAMemberByHand(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(1);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::AnyReference::from(package.installer()));
}
BENCHMARK(referToAMemberByHand)->Name("member/by hand");

void referToAMemberByIndex(benchmark::State& state)
{
    constexpr std::size_t k_installer = 13;
    const zu::PackageInfo package = bench::package(1);
    const zu::AnyReference reference = zu::AnyReference::from(package);
    for (auto _ : state)
        benchmark::DoNotOptimize(reference._element(k_installer));
}
BENCHMARK(referToAMemberByIndex)->Name("member/by index");

void referToAMemberByName(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(1);
    const zu::AnyReference reference = zu::AnyReference::from(package);
    for (auto _ : state)
        benchmark::DoNotOptimize(reference.member("installer"));
}
BENCHMARK(referToAMemberByName)->Name("member/by name");

std::string dumpOf(const zu::PackageInfo& package)
{
    std::ostringstream stream;
    stream << package;
    return stream.str();
}

void compareDumps(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(k_behaviorsInValues);
    const zu::PackageInfo other = bench::package(k_behaviorsInValues);
    for (auto _ : state)
        benchmark::DoNotOptimize(dumpOf(package) == dumpOf(other));
}
BENCHMARK(compareDumps)->Name("equal packages/dumps");

void compareByTheTypeSystem(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(k_behaviorsInValues);
    const zu::PackageInfo other = bench::package(k_behaviorsInValues);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::AnyReference::from(package) == zu::AnyReference::from(other));
}
BENCHMARK(compareByTheTypeSystem)->Name("equal packages/type system");

void printADump(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(k_behaviorsInValues);
    for (auto _ : state)
        benchmark::DoNotOptimize(dumpOf(package));
}
BENCHMARK(printADump)->Name("print a package/dump");

void printByTheTypeSystem(benchmark::State& state)
{
    const zu::PackageInfo package = bench::package(k_behaviorsInValues);
    for (auto _ : state) {
        std::ostringstream stream;
        stream << zu::AnyReference::from(package);
        benchmark::DoNotOptimize(stream.str());
    }
}
BENCHMARK(printByTheTypeSystem)->Name("print a package/type system");

std::vector<bench::Target> valueTargets()
{
    return {{"member/by index", "member/by hand", 0},
            {"member/by name", "member/by index", 0},
            {"equal packages/type system", "equal packages/dumps", 0},
            {"print a package/type system", "print a package/dump", 0}};
}

} // namespace

/// Exits with 1 when a target was missed.
int main(int argc, char** argv) { return bench::run(argc, argv, valueTargets()); }
