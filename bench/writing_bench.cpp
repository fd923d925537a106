// Writing a package, beside what Qt takes to turn a document that is there already into text.
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <QtXml/QDomDocument>

namespace {

void saveToManifestContent(benchmark::State& state)
{
    zu::PackageInfo package = bench::package(static_cast<int>(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(package.saveToManifestContent());
}

void finishedTreeToString(benchmark::State& state)
{
    zu::PackageInfo package = bench::package(static_cast<int>(state.range(0)));
    QDomDocument document;
    document.setContent(QByteArray::fromStdString(package.saveToManifestContent()));
    for (auto _ : state)
        benchmark::DoNotOptimize(document.toString(1));
}

BENCHMARK(saveToManifestContent)->RangeMultiplier(10)->Range(1, 1000);
BENCHMARK(finishedTreeToString)->RangeMultiplier(10)->Range(1, 1000);

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Target> targets;
    for (const char* behaviors : {"1", "10", "100", "1000"})
        targets.push_back({std::string("saveToManifestContent/") + behaviors,
                           std::string("finishedTreeToString/") + behaviors, 0.20});
    return bench::run(argc, argv, targets);
}
