// Checking a manifest beside the bare lenient parse of the same bytes.
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <zupackage/authoring/check.hpp>

#include <QtXml/QDomDocument>

#include <benchmark/benchmark.h>

namespace {

/// The manifest of a package with as many behaviors as the benchmark's argument says; ten take 20 kB.
std::string content(const benchmark::State& state)
{
    return bench::package(static_cast<int>(state.range(0))).saveToManifestContent();
}

void bareParse(benchmark::State& state)
{
    const std::string text = content(state);
    for (auto _ : state) {
        QDomDocument document;
        benchmark::DoNotOptimize(
            document.setContent(QByteArray::fromRawData(text.data(), static_cast<int>(text.size()))));
    }
}

void check(benchmark::State& state)
{
    const std::string text = content(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::authoring::check(zu::authoring::SourceDocument::parse(text)).findings.size());
}

void sizes(benchmark::internal::Benchmark* benchmark) { benchmark->RangeMultiplier(10)->Range(1, 1000); }
BENCHMARK(bareParse)->Apply(&sizes);
BENCHMARK(check)->Apply(&sizes);

} // namespace

int main(int argc, char** argv)
{
    // Both cores check, so that twice 1.5 is one and a half times the parse on one.
    std::vector<bench::Target> targets;
    for (const std::string size : {"/1", "/10", "/100", "/1000"})
        targets.push_back({"check" + size, "bareParse" + size, 3.0});
    return bench::run(argc, argv, std::move(targets));
}
