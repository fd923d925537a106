// Reading a manifest, beside what QDomDocument alone takes for the same bytes.
#include "manifest_file.hpp"
#include "ratio_reporter.hpp"
#include "sample_manifests.hpp"

#include <zupackage/package_info2.hpp>

#include <QtCore/QFile>
#include <QtXml/QDomDocument>

namespace {

void parseText(benchmark::State& state, const std::string& content)
{
    for (auto _ : state) {
        QDomDocument document;
        benchmark::DoNotOptimize(document.setContent(QString::fromStdString(content), true));
    }
}

void parseFile(benchmark::State& state, const std::string& content)
{
    const bench::ManifestFile manifest(content);
    for (auto _ : state) {
        QFile file(manifest.name());
        file.open(QIODevice::ReadOnly);
        QDomDocument document;
        benchmark::DoNotOptimize(document.setContent(&file));
    }
}

void loadFromManifestContent(benchmark::State& state, const std::string& content)
{
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(package.loadFromManifestContent(content));
    }
}

void loadFromManifestFile(benchmark::State& state, const std::string& content)
{
    const bench::ManifestFile manifest(content);
    const std::string path = manifest.name().toStdString();
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(package.loadFromManifestFile(path));
    }
}

void loadManifest(benchmark::State& state, const std::string& content)
{
    const bench::ManifestFile manifest(content);
    const std::string path = manifest.name().toStdString();
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::loadManifest(path));
}

/// How long reading may take in proportion to the parser alone.
constexpr double k_readingAtMost = 0.8;

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Target> targets;
    for (const auto& [name, content] : bench::sampleManifests()) {
        const auto add = [&content = content, suffix = '/' + name](std::string what, auto function) {
            benchmark::RegisterBenchmark((what += suffix).c_str(), function, content);
            return what;
        };
        const std::string text = add("parseText", parseText);
        const std::string file = add("parseFile", parseFile);
        targets.push_back({add("loadFromManifestContent", loadFromManifestContent), text, k_readingAtMost});
        targets.push_back({add("loadFromManifestFile", loadFromManifestFile), file, k_readingAtMost});
        targets.push_back({add("loadManifest", loadManifest), file, k_readingAtMost});
    }
    return bench::run(argc, argv, std::move(targets));
}
