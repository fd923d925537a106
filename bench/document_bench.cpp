// Reading a manifest, beside what QDomDocument alone takes for the same bytes.
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <zupackage/package_info2.hpp>

#include <QtCore/QFile>
#include <QtCore/QTemporaryFile>
#include <QtXml/QDomDocument>

#include <benchmark/benchmark.h>

namespace {

/// The manifest of a package with as many behaviors as the benchmark's argument says.
std::string content(const benchmark::State& state)
{
    return bench::package(static_cast<int>(state.range(0))).saveToManifestContent();
}

/// The same in a file, which goes with the object.
class ManifestFile
{
public:
    explicit ManifestFile(const benchmark::State& state)
    {
        m_file.open();
        m_file.write(QByteArray::fromStdString(content(state)));
        m_file.close();
    }

    QString name() const { return m_file.fileName(); }

private:
    QTemporaryFile m_file;
};

void parseText(benchmark::State& state)
{
    const std::string text = content(state);
    for (auto _ : state) {
        QDomDocument document;
        benchmark::DoNotOptimize(document.setContent(QString::fromStdString(text), true));
    }
}

void parseFile(benchmark::State& state)
{
    const ManifestFile manifest(state);
    for (auto _ : state) {
        QFile file(manifest.name());
        file.open(QIODevice::ReadOnly);
        QDomDocument document;
        benchmark::DoNotOptimize(document.setContent(&file));
    }
}

void loadFromManifestContent(benchmark::State& state)
{
    const std::string text = content(state);
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(package.loadFromManifestContent(text));
    }
}

void loadFromManifestFile(benchmark::State& state)
{
    const ManifestFile manifest(state);
    const std::string path = manifest.name().toStdString();
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(package.loadFromManifestFile(path));
    }
}

void loadManifest(benchmark::State& state)
{
    const ManifestFile manifest(state);
    const std::string path = manifest.name().toStdString();
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::loadManifest(path));
}

void sizes(benchmark::internal::Benchmark* benchmark) { benchmark->RangeMultiplier(10)->Range(1, 1000); }
BENCHMARK(parseText)->Apply(&sizes);
BENCHMARK(parseFile)->Apply(&sizes);
BENCHMARK(loadFromManifestContent)->Apply(&sizes);
BENCHMARK(loadFromManifestFile)->Apply(&sizes);
BENCHMARK(loadManifest)->Apply(&sizes);

/// Each size of `what` by the same of `floor`.
void addTargets(std::vector<bench::Target>& targets, const std::string& what, const std::string& floor)
{
    for (const char* size : {"/1", "/10", "/100", "/1000"})
        targets.push_back({what + size, floor + size, 0.8});
}

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Target> targets;
    addTargets(targets, "loadFromManifestContent", "parseText");
    addTargets(targets, "loadFromManifestFile", "parseFile");
    addTargets(targets, "loadManifest", "parseFile");
    return bench::run(argc, argv, std::move(targets));
}
