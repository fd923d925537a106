// Writing a package, beside what Qt takes to turn a document that is there already into text.
#include "ratio_reporter.hpp"
#include "sample_manifests.hpp"

#include <QtXml/QDomDocument>

namespace {

void saveToManifestContent(benchmark::State& state, const std::string& content)
{
    zu::PackageInfo package;
    package.loadFromManifestContent(content);
    for (auto _ : state)
        benchmark::DoNotOptimize(package.saveToManifestContent());
}

void finishedTreeToString(benchmark::State& state, const std::string& content)
{
    QDomDocument document;
    document.setContent(QByteArray::fromStdString(content));
    for (auto _ : state)
        benchmark::DoNotOptimize(document.toString(1));
}

/// How long writing may take in proportion.
constexpr double k_writingAtMost = 0.2;

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Target> targets;
    for (const auto& [name, content] : bench::sampleManifests()) {
        targets.push_back({"saveToManifestContent/" + name, "finishedTreeToString/" + name, k_writingAtMost});
        benchmark::RegisterBenchmark(targets.back().what.c_str(), saveToManifestContent, content);
        benchmark::RegisterBenchmark(targets.back().floor.c_str(), finishedTreeToString, content);
    }
    return bench::run(argc, argv, targets);
}
