// Reading a document strictly with the places of everything, beside a bare pass of QXmlStreamReader over the bytes.
#include "manifest_sizes.hpp"
#include "ratio_reporter.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <QtCore/QXmlStreamReader>

#include <benchmark/benchmark.h>

namespace {

void streamReader(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    for (auto _ : state) {
        QXmlStreamReader reader(QByteArray::fromRawData(text.data(), static_cast<int>(text.size())));
        while (!reader.atEnd())
            reader.readNext();
        benchmark::DoNotOptimize(reader.hasError());
    }
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

void sourceDocument(benchmark::State& state)
{
    const std::string text = bench::manifestFor(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::authoring::SourceDocument::parse(text).isWellFormed());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

/// With a document type, QXmlStreamReader goes over it, too.
void sourceDocumentWithType(benchmark::State& state)
{
    std::string text = bench::manifestFor(state);
    text.insert(text.find("<package"), "<!DOCTYPE package [<!ENTITY e 'text'>]>\n");
    for (auto _ : state)
        benchmark::DoNotOptimize(zu::authoring::SourceDocument::parse(text).isWellFormed());
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}

BENCHMARK(streamReader)->Apply(&bench::tenfold);
BENCHMARK(sourceDocument)->Apply(&bench::tenfold);
BENCHMARK(sourceDocumentWithType)->Apply(&bench::tenfold);

} // namespace

int main(int argc, char** argv)
{
    std::vector<bench::Target> targets;
    for (const std::string size : {"/1", "/10", "/100", "/1000"}) {
        targets.push_back({"sourceDocument" + size, "streamReader" + size, 0.6});
        targets.push_back({"sourceDocumentWithType" + size, "streamReader" + size, 2.0});
    }
    return bench::run(argc, argv, std::move(targets));
}
