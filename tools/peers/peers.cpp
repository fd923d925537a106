// Reading a manifest as a package, beside what other parsers take for the same bytes without making a package of it.
// usage: peers MANIFEST [BENCHMARK OPTION...]
#include <zupackage/package_info.hpp>

#include <QtCore/QXmlStreamReader>
#include <QtXml/QDomDocument>

#include <benchmark/benchmark.h>
#include <expat.h>
#include <fstream>
#include <iostream>
#include <iterator>
#include <libxml/parser.h>
#include <memory>
#include <pugixml.hpp>

namespace {

std::string g_manifest;

int size() { return static_cast<int>(g_manifest.size()); }

bool readPackage() { return zu::PackageInfo().loadFromManifestContent(g_manifest); }

bool readQDomDocument() { return QDomDocument().setContent(QByteArray::fromRawData(g_manifest.data(), size())); }

bool readQXmlStreamReader()
{
    QXmlStreamReader reader(QByteArray::fromRawData(g_manifest.data(), size()));
    while (!reader.atEnd())
        reader.readNext();
    return !reader.hasError();
}

bool readLibxml2()
{
    xmlDoc* document = xmlReadMemory(g_manifest.data(), size(), nullptr, nullptr, XML_PARSE_NONET);
    xmlFreeDoc(document);
    return document != nullptr;
}

bool readExpat()
{
    const std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> parser(XML_ParserCreate(nullptr),
                                                                              &XML_ParserFree);
    XML_SetElementHandler(
        parser.get(), [](void*, const XML_Char*, const XML_Char**) {}, [](void*, const XML_Char*) {});
    XML_SetCharacterDataHandler(parser.get(), [](void*, const XML_Char*, int) {});
    return XML_Parse(parser.get(), g_manifest.data(), size(), XML_TRUE) == XML_STATUS_OK;
}

bool readPugixml()
{
    pugi::xml_document document;
    return document.load_buffer(g_manifest.data(), g_manifest.size());
}

void run(benchmark::State& state, bool (*read)())
{
    for (auto _ : state)
        if (!read())
            state.SkipWithError("the manifest cannot be read");
}

BENCHMARK_CAPTURE(run, zupackage, readPackage)->Name("zupackage");
BENCHMARK_CAPTURE(run, qDomDocument, readQDomDocument)->Name("QDomDocument");
BENCHMARK_CAPTURE(run, qXmlStreamReader, readQXmlStreamReader)->Name("QXmlStreamReader");
BENCHMARK_CAPTURE(run, libxml2, readLibxml2)->Name("libxml2");
BENCHMARK_CAPTURE(run, expat, readExpat)->Name("expat");
BENCHMARK_CAPTURE(run, pugixml, readPugixml)->Name("pugixml");

} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    if (argc != 2) {
        std::cerr << "usage: " << argv[0] << " MANIFEST [BENCHMARK OPTION...]\n";
        return 2;
    }
    std::ifstream file(argv[1], std::ios::binary);
    g_manifest.assign(std::istreambuf_iterator<char>(file), {});
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
