#pragma once

#include "sample_packages.hpp"

#include <benchmark/benchmark.h>
#include <string>

namespace bench {

/// The manifest of a package with as many behaviors as the benchmark's argument says: ten take 20 kB.
inline std::string manifestFor(const benchmark::State& state)
{
    return package(static_cast<int>(state.range(0))).saveToManifestContent();
}

/// Runs a benchmark for 1, 10, 100 and 1,000 behaviors.
inline void tenfold(benchmark::internal::Benchmark* benchmark) { benchmark->RangeMultiplier(10)->Range(1, 1000); }

} // namespace bench
