// Editing a manifest, beside a bare pass of QXmlStreamReader over the bytes and writing them, and beside reading it.
#include "manifest_file.hpp"
#include "ratio_reporter.hpp"
#include "sample_packages.hpp"

#include <zupackage/authoring/manifest_editor.hpp>

#include <QtCore/QFile>
#include <QtCore/QXmlStreamReader>

#include <benchmark/benchmark.h>

namespace {

using zu::authoring::ManifestEditor;
using zu::authoring::SourceDocument;

/// The manifest of a package with as many behaviors as the benchmark's argument says; 1,000 take 2 MB.
std::string content(const benchmark::State& state)
{
    return bench::package(static_cast<int>(state.range(0))).saveToManifestContent();
}

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
    const std::string text = content(state);
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
    const std::string text = content(state);
    const bench::ManifestFile manifest(text);
    for (auto _ : state) {
        ManifestEditor editor(SourceDocument::parse(text));
        editor.update(changed(editor.package()));
        write(manifest, editor.document().text());
    }
}

void read(benchmark::State& state)
{
    const std::string text = content(state);
    for (auto _ : state) {
        zu::PackageInfo package;
        benchmark::DoNotOptimize(zu::readManifest(text, package));
    }
}

void update(benchmark::State& state)
{
    const ManifestEditor opened(SourceDocument::parse(content(state)));
    const zu::PackageInfo package = changed(opened.package());
    for (auto _ : state) {
        ManifestEditor editor = opened;
        editor.update(package);
        benchmark::DoNotOptimize(editor.document().text().data());
    }
}

void sizes(benchmark::internal::Benchmark* benchmark) { benchmark->Arg(10)->Arg(1000)->Arg(2000); }
BENCHMARK(passAndWrite)->Apply(&sizes);
BENCHMARK(openEditAndWrite)->Apply(&sizes);
BENCHMARK(read)->Apply(&sizes);
BENCHMARK(update)->Apply(&sizes);

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
