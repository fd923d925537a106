// Changing one text of a manifest file beside what no program that changes a file can go without: reading its bytes,
// one bare pass of a strict parser over them, and writing them.
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <zupackage/authoring/path_edit.hpp>

#include <QtCore/QFile>
#include <QtCore/QSaveFile>
#include <QtCore/QTemporaryDir>
#include <QtCore/QXmlStreamReader>

#include <benchmark/benchmark.h>

namespace {

/// A file with the manifest of as many behaviors as the benchmark's argument says; 2,000 take 4 MB.
class ManifestFile
{
public:
    explicit ManifestFile(const benchmark::State& state)
    {
        zu::saveManifest(bench::package(static_cast<int>(state.range(0))), path().toStdString());
    }

    QString path() const { return m_folder.filePath(QStringLiteral("manifest.xml")); }

    QByteArray bytes() const
    {
        QFile file(path());
        file.open(QIODevice::ReadOnly);
        return file.readAll();
    }

private:
    QTemporaryDir m_folder;
};

void parseAndWrite(benchmark::State& state)
{
    const ManifestFile manifest(state);
    for (auto _ : state) {
        const QByteArray bytes = manifest.bytes();
        QXmlStreamReader reader(bytes);
        while (!reader.atEnd())
            reader.readNext();
        benchmark::DoNotOptimize(reader.hasError());
        QSaveFile file(manifest.path());
        file.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        file.write(bytes);
        benchmark::DoNotOptimize(file.commit());
    }
}

void setText(benchmark::State& state, const char* path)
{
    using namespace zu::authoring;

    const ManifestFile manifest(state);
    int count = 0;
    for (auto _ : state) {
        const SourceDocument document = SourceDocument::parse(manifest.bytes().toStdString());
        const SetText edit = {ManifestPath(path), "name " + std::to_string(++count)};
        zu::replaceManifest(manifest.path().toStdString(), edited(document, {edit}).text());
    }
}

void setOneText(benchmark::State& state) { setText(state, "names/name[1]"); }

void setTextOfEach(benchmark::State& state) { setText(state, "contents/behaviorContent/names/name[1]"); }

void pathSizes(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(20)->Arg(2000); }
BENCHMARK(parseAndWrite)->Apply(&pathSizes);
BENCHMARK(setOneText)->Apply(&pathSizes);
BENCHMARK(setTextOfEach)->Apply(&pathSizes);

} // namespace

int main(int argc, char** argv)
{
    // What readers take from the whole manifest is looked at, too, when many texts change.
    std::vector<bench::Target> targets;
    for (const std::string size : {"/20", "/2000"}) {
        targets.push_back({"setOneText" + size, "parseAndWrite" + size, 2.0});
        targets.push_back({"setTextOfEach" + size, "parseAndWrite" + size, 6.0});
    }
    return bench::run(argc, argv, std::move(targets));
}
