#include "support/encodings.hpp"
#include "support/stream_reader.hpp"

#include <zupackage/authoring/source_document.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

// Characters of one to four bytes in UTF-8.
const std::string k_text = "a\xc3\xa9\xe2\x82\xac\xf0\x9f\xa4\x96z";

struct Form
{
    const char* name;
    std::string mark;
    std::size_t nameBegin; ///< of the second element, in bytes
};

/// A document with a declaration where the encoding has to be told.
std::string declared(const std::string& encoding, const std::string& content)
{
    return "<?xml version='1.0' encoding='" + encoding + "'?>" + content;
}

} // namespace

TEST(SourceDocumentEncodings, EachUnicodeFormIsFoundAndPlacesAreThoseOfItsBytes)
{
    using namespace std::string_literals;
    const Form forms[] = {
        {"UTF-8", "", 14},    {"UTF-8", "\xef\xbb\xbf", 17},
        {"UTF-16LE", "", 18}, {"UTF-16LE", "\xff\xfe", 20},
        {"UTF-16BE", "", 18}, {"UTF-16BE", "\xfe\xff", 20},
        {"UTF-32LE", "", 32}, {"UTF-32LE", "\xff\xfe\0\0"s, 36},
        {"UTF-32BE", "", 32}, {"UTF-32BE", "\0\0\xfe\xff"s, 36},
    };
    for (const Form& form : forms) {
        SCOPED_TRACE(form.name + std::to_string(form.mark.size()));
        const std::string bytes = form.mark + test::encoded("<p>" + k_text + "<b c='\xc3\xa9'/></p>", form.name);
        const SourceDocument document = SourceDocument::parse(bytes);
        const SourceNode b = document.root().child("b");
        EXPECT_EQ(document.encoding(), form.name);
        EXPECT_EQ(document.hasByteOrderMark(), !form.mark.empty());
        EXPECT_EQ(b.range().begin, form.nameBegin);
        EXPECT_EQ(bytes.substr(b.range().begin, b.range().size()), test::encoded("<b c='\xc3\xa9'/>", form.name));
        EXPECT_EQ(document.root().textContent(), k_text);
        EXPECT_EQ(document.place(b.range().begin), (Place{1, 9}));
        EXPECT_EQ(document.line(b.range().begin), "<p>" + k_text + "<b c='\xc3\xa9'/></p>");
        EXPECT_TRUE(document.isWellFormed());
        EXPECT_EQ(test::faultInRanges(document), "");
    }
}

TEST(SourceDocumentEncodings, ADeclaredEncodingIsRead)
{
    const std::pair<const char*, const char*> encodings[] = {
        {"ISO-8859-1", "\xc3\xa9"}, {"latin1", "\xc3\xa9"},        {"windows-1252", "\xe2\x82\xac"},
        {"KOI8-R", "\xd0\x96"},     {"Shift_JIS", "\xe8\xa1\xa8"}, {"GB18030", "\xe8\xa1\xa8\xf0\x9f\xa4\x96"},
        {"EUC-JP", "\xe8\xa1\xa8"}};
    for (const auto& [encoding, text] : encodings) {
        SCOPED_TRACE(encoding);
        const std::string bytes =
            test::encoded(declared(encoding, "<p><b>" + std::string(text) + "</b><c/></p>"), encoding);
        const SourceDocument document = SourceDocument::parse(bytes);
        EXPECT_EQ(document.root().child("b").textContent(), text);
        const ByteRange last = document.root().child("c").range();
        EXPECT_EQ(bytes.substr(last.begin, last.size()), "<c/>");
        EXPECT_TRUE(document.isWellFormed());
        EXPECT_EQ(document.text(), bytes);
    }
    EXPECT_EQ(SourceDocument::parse(declared("latin1", "<p/>")).encoding(), "ISO-8859-1");
}

TEST(SourceDocumentEncodings, AnUnknownOrWrongDeclarationIsTold)
{
    const auto message = [](const std::string& bytes) {
        const SourceDocument document = SourceDocument::parse(bytes);
        EXPECT_EQ(document.errors().size(), 1u);
        EXPECT_EQ(document.errors().front().kind, SyntaxErrorKind::Encoding);
        EXPECT_EQ(document.errors().front().place, (Place{1, 31}));
        EXPECT_TRUE(document.root());
        return document.errors().front().message;
    };
    EXPECT_EQ(message(declared("no-such", "<p/>")), "the encoding 'no-such' is not known");
    EXPECT_EQ(message(declared("UTF-16", "<p/>")), "the document is in UTF-8, not in 'UTF-16'");
    EXPECT_EQ(message("\xef\xbb\xbf" + declared("ISO-8859-1", "<p/>")),
              "the document is in UTF-8, not in 'ISO-8859-1'");
    EXPECT_EQ(message(test::encoded(declared("UTF-8", "<p/>"), "UTF-16LE")),
              "the document is in UTF-16LE, not in 'UTF-8'");
    EXPECT_EQ(message(test::encoded(declared("UTF-16", "<p/>"), "UTF-16BE")),
              "the document is in UTF-16BE, not in 'UTF-16'");
    EXPECT_TRUE(
        SourceDocument::parse("\xfe\xff" + test::encoded(declared("UTF-16", "<p/>"), "UTF-16BE")).isWellFormed());
    EXPECT_TRUE(SourceDocument::parse(test::encoded(declared("UTF-16BE", "<p/>"), "UTF-16BE")).isWellFormed());
}

TEST(SourceDocumentEncodings, BytesThatMeanNothingAreToldAndTheRestIsRead)
{
    const SourceDocument document = SourceDocument::parse("<p><a>\xe9t\xe9\xff</a><b/></p>");
    ASSERT_EQ(document.errors().size(), 2u);
    EXPECT_EQ(document.errors()[0].message, "bytes that are not UTF-8");
    EXPECT_EQ(document.errors()[0].range, (ByteRange{6, 7}));
    EXPECT_EQ(document.errors()[1].range, (ByteRange{8, 10}));
    EXPECT_EQ(document.errors()[1].place, (Place{1, 9}));
    EXPECT_EQ(document.root().child("a").textContent(), "\xef\xbf\xbdt\xef\xbf\xbd\xef\xbf\xbd");
    EXPECT_EQ(document.root().child("b").range(), (ByteRange{14, 18}));
    EXPECT_TRUE(document.isComplete());
}

TEST(SourceDocumentEncodings, ABrokenCharacterLeavesTheNextOneItsBytes)
{
    const std::string bytes = declared("Shift_JIS", "<p>\x95</p>");
    const SourceDocument document = SourceDocument::parse(bytes);
    EXPECT_FALSE(document.isWellFormed());
    EXPECT_EQ(document.root().textContent(), "\xef\xbf\xbd");
    const ByteRange end = document.root().endTagRange();
    EXPECT_EQ(bytes.substr(end.begin, end.size()), "</p>");
}

TEST(SourceDocumentEncodings, EveryFormOfBrokenUtf8IsTold)
{
    // A lone continuation, an overlong form, a surrogate, beyond Unicode, an end in the middle.
    for (const char* broken :
         {"\x80", "\xc0\xaf", "\xe0\x80\xaf", "\xed\xa0\x80", "\xf4\x90\x80\x80", "\xf5", "\xe2\x82"})
        EXPECT_THAT(SourceDocument::parse("<p>" + std::string(broken) + "</p>").errors(), testing::SizeIs(1)) << broken;
}

TEST(SourceDocumentEncodings, HalvesOfCharactersInUtf16AreTold)
{
    using namespace std::string_literals;
    const std::string start = "\xff\xfe" + test::encoded("<p>", "UTF-16LE");
    const std::string end = test::encoded("</p>", "UTF-16LE");
    for (const std::string& half : {"\x3e\xd8"s, "\x16\xdd"s})
        EXPECT_EQ(SourceDocument::parse(start + half + end).errors().front().range, (ByteRange{8, 10}));
    EXPECT_EQ(SourceDocument::parse(start + end + "\n").errors().front().range, (ByteRange{16, 17}));
}

} // namespace zu::authoring
