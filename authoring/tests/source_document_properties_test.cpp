#include "support/encodings.hpp"
#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/property.hpp"
#include "support/stream_reader.hpp"
#include "support/well_formed_documents.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/authoring/text_edit.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

/// UTF-8 in any of the encodings, with a declaration where there must be one.
std::string inAnyEncoding(const std::string& utf8)
{
    switch (*rc::gen::inRange(0, 8)) {
    case 0:
        return "\xff\xfe" + test::encoded(utf8, "UTF-16LE");
    case 1:
        return test::encoded(utf8, "UTF-16BE");
    case 2:
        return "\xef\xbb\xbf" + utf8;
    case 3:
        return "<?xml version='1.0' encoding='ISO-8859-1'?>" +
               test::encoded(test::withoutBeyondLatin1(utf8), "ISO-8859-1");
    default:
        return utf8;
    }
}

/// Fails the property when the document reads otherwise than QXmlStreamReader has it, showing its bytes.
void expectNoDifference(const std::string& bytes)
{
    const std::string difference = test::differenceFromStreamReader(bytes);
    if (!difference.empty())
        RC_FAIL(difference + "\n" + testing::PrintToString(bytes));
}

} // namespace

TEST(SourceDocumentProperties, WellFormedDocumentsReadAsQXmlStreamReaderHasThem)
{
    test::checkProperty(1000, [] {
        const std::string bytes = inAnyEncoding(test::wellFormedDocument());
        const SourceDocument document = SourceDocument::parse(bytes);
        for (const SyntaxError& error : document.errors())
            RC_FAIL(error.message + " in " + bytes);
        expectNoDifference(bytes);
    });
}

TEST(SourceDocumentProperties, AnyBytesMakeADocument)
{
    test::checkProperty(2000, [] {
        const std::string bytes = *rc::gen::arbitrary<bool>()
                                      ? test::mutatedDocument(inAnyEncoding(test::wellFormedDocument()))
                                      : inAnyEncoding(test::anyDocument());
        expectNoDifference(bytes);
    });
}

TEST(SourceDocumentProperties, EditsOfNothingChangeNothing)
{
    test::checkProperty(300, [] {
        const std::string bytes = inAnyEncoding(test::wellFormedDocument());
        const SourceDocument document = SourceDocument::parse(bytes);
        std::vector<TextEdit> edits;
        for (std::size_t i = 1; i < document.nodeCount(); ++i) {
            const ByteRange range = document.node(i).startTagRange();
            edits.push_back({{range.begin, range.begin}, ""});
        }
        RC_ASSERT(applyEdits(document, edits) == bytes);
    });
}

TEST(SourceDocumentProperties, EveryBeginningOfADocumentIsRead)
{
    const std::string bytes = test::readFile(test::sourcePath("examples/packages/speech-language-de/manifest.xml"));
    for (std::size_t size = 0; size < bytes.size(); ++size)
        ASSERT_EQ(test::differenceFromStreamReader(bytes.substr(0, size)), "") << size;
}

TEST(SourceDocumentProperties, TheExamplesAndHostileDocumentsReadAsQXmlStreamReaderHasThem)
{
    int seen = 0;
    for (const char* folder : {"examples/packages", "tests/hostile/documents", "fuzz/corpus/reader"})
        for (const auto& entry : std::filesystem::recursive_directory_iterator(test::sourcePath(folder)))
            if (entry.path().extension() == ".xml") {
                EXPECT_EQ(test::differenceFromStreamReader(test::readFile(entry.path())), "") << entry.path();
                ++seen;
            }
    EXPECT_GT(seen, 50);
}

} // namespace zu::authoring
