// Checking a manifest beside the bare lenient parse of the same bytes.
#include "manifest_sizes.hpp"
#include "ratio_reporter.hpp"

#include <zupackage/authoring/check.hpp>

#include <QtXml/QDomDocument>

#include <benchmark/benchmark.h>

namespace {

void bareParse(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    for (auto _ : state) {
        QDomDocument document;
        benchmark::DoNotOptimize(
            document.setContent(QByteArray::fromRawData(text.data(), static_cast<int>(text.size()))));
    }
}

void check(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::authoring::check(zu::authoring::SourceDocument::parse(text)).findings.size());
}

BENCHMARK(bareParse)->Apply(&bench::tenfold);
BENCHMARK(check)->Apply(&bench::tenfold);

} // namespace

int main(int argc, char** argv)
{
    // Both cores check, so that twice 1.5 is one and a half times the parse on one.
    std::vector<bench::Target> targets;
    for (const std::string size : {"/1", "/10", "/100", "/1000"})
        targets.push_back({"check" + size, "bareParse" + size, 3.0});
    return bench::run(argc, argv, std::move(targets));
}
