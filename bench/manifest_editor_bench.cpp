// Editing a manifest, beside a bare pass of QXmlStreamReader over the bytes and writing them, and beside reading it.
#include "manifest_file.hpp"
#include "manifest_sizes.hpp"
#include "ratio_reporter.hpp"

#include <zupackage/authoring/manifest_editor.hpp>

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

#include <benchmark/benchmark.h>

namespace {

using zu::authoring::ManifestEditor;
using zu::authoring::SourceDocument;

void write(const bench::ManifestFile& manifest, const std::string& bytes)
{
    QFile file(manifest.name());
    file.open(QIODevice::WriteOnly);
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

/// The package with another text deep within.
zu::PackageInfo changed(zu::PackageInfo package)
{
    package.behaviors().back().setName("Another name", "fr");
    return package;
}

void passAndWrite(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    const bench::ManifestFile manifest(text);
    for (auto _ : state) {
        QXmlStreamReader reader(QByteArray::fromRawData(text.data(), static_cast<int>(text.size())));
        while (!reader.atEnd())
            reader.readNext();
        write(manifest, text);
    }
}

void openEditAndWrite(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    const bench::ManifestFile manifest(text);
    for (auto _ : state) {
        ManifestEditor editor(SourceDocument::parse(text));
        editor.update(changed(editor.package()));
        write(manifest, editor.document().text());
    }
}

void read(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(zu::readManifest(text, package));
    }
}

void update(benchmark::State& state)
{
    const ManifestEditor opened(SourceDocument::parse(bench::manifestFor(state)));
    const zu::PackageInfo package = changed(opened.package());
    for (auto _ : state) {
        ManifestEditor editor = opened;
        editor.update(package);
        benchmark::DoNotOptimize(editor.document().text().data());
    }
}

void editedSizes(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(10)->Arg(1000)->Arg(2000); }
BENCHMARK(passAndWrite)->Apply(&editedSizes);
BENCHMARK(openEditAndWrite)->Apply(&editedSizes);
BENCHMARK(read)->Apply(&editedSizes);
BENCHMARK(update)->Apply(&editedSizes);

} // namespace

int main(int argc, char** argv)
{
    // The package library's reader goes over the document when it is opened and once more when it is edited: alone that
    // takes about three passes.
    std::vector<bench::Target> targets;
    for (const std::string size : {"/10", "/1000", "/2000"}) {
        targets.push_back({"openEditAndWrite" + size, "passAndWrite" + size, 6.0});
        targets.push_back({"update" + size, "read" + size, 3.0});
    }
    return bench::run(argc, argv, std::move(targets));
}
