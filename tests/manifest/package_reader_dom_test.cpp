// Reading gives exactly what QDomDocument::setContent would, whichever way the library takes.
#include "support/dom_reader.hpp"
#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/generated_packages.hpp"
#include "support/manifests.hpp"
#include "support/property.hpp"

namespace zu {

using test::differenceFromDom;

namespace {

std::string example() { return test::readFile(test::sourcePath("examples/packages/speech-language-de/manifest.xml")); }

/// ASCII text as UTF-16 or UTF-32, without a byte order mark.
std::string widened(const std::string& text, int bytes, bool bigEndian)
{
    std::string wide;
    const std::string zeros(static_cast<std::size_t>(bytes) - 1, '\0');
    for (const char c : text)
        wide += bigEndian ? zeros + c : c + zeros;
    return wide;
}

} // namespace

TEST(PackageReaderDom, WhatIsEasilyReadOtherwise)
{
    const char* const elements[] = {
        "<p uuid='1' uuid='2'/>",
        "<p z:uuid='1'/>",
        "<p uuid='1' z:uuid='2'/>",
        "<p z:uuid='1' uuid='2'/>",
        "<p xmlns:z='u' z:uuid='1' uuid='2' z:uuid='3'/>",
        "<p xmlns:z='u' xmlns:y='v' z:uuid='1' y:uuid='2' uuid='3' z:uuid='4'/>",
        "<p xmlns:uuid='1' xmlns='2' xmlnsuuid='3' :uuid='4'/>",
        "<p><z:names><n lang='en'>a</n></z:names><:names><n lang='en'>b</n></:names></p>",
        "<p><names><n xml:lang='en'>a</n></names></p>",
        "<p uuid=' a\tb\nc\r\nd\re&#9;f&#10;g&#13;h '><names><n>\ta\r\nb\rc </n></names></p>",
        // NOLINTNEXTLINE(bugprone-suspicious-missing-comma): too long for a line
        "<p><supportedLanguages> <l> </l>\xc2\xa0<l>\xc2\xa0</l>&#32;<l>&#32;</l><![CDATA[ ]]><l><![CDATA[ ]]></l>"
        "</supportedLanguages></p>",
        "<p><names>a<!-- b --><![CDATA[c]]><?d?>&#101;<n lang='en'>a<!-- b --><![CDATA[c]]><?d?>&#101;<f>g</f></n>"
        "</names></p>",
        "<p><?names?><?services <a>?><services><?service execStart='a'?></services></p>",
        "<p><names><n>&#xD83E;<!-- -->&#xDD16;</n><n lang='a'>&#xD83E;&#xDD16;</n><n lang='b'>&#xDD16;&#xD83E;</n>"
        "</names></p>",
        "<p uuid='&#xD83E;' author='&lt;&gt;&amp;&apos;&quot;&#x41;&#66;&#0;&#x1F916;'/>",
        "<p><names><n lang='en'>a&undeclared;b</n>&undeclared;</names></p>",
        "<p uuid='a&undeclared;b'/>",
        "<p><names><n lang='en'>a\xef\xbf\xbe</n></names></p>",
        "<p/>\xef\xbf\xbf<p/>",
        "<p/><p/>",
        "<p/>x",
    };
    for (const std::string element : elements)
        for (const char* before : {"", "\xef\xbb\xbf", "<?xml version='1.0'?>", "<!DOCTYPE p>"})
            EXPECT_EQ(differenceFromDom(before + element), "") << before << element;
    for (const std::string node : {"canSitDown", "<!--canSitDown-->", "<![CDATA[canSitDown]]>", "<?canSitDown?>",
                                   "<canSitDown/>", "<z:canSitDown/>", "&canSitDown;"})
        EXPECT_EQ(differenceFromDom("<p><contents><behaviorContent><permissions>" + node +
                                    "</permissions></behaviorContent></contents></p>"),
                  "")
            << node;
}

TEST(PackageReaderDom, GeneratedDocuments)
{
    test::checkProperty(2000,
                        [] { RC_ASSERT(differenceFromDom(*rc::gen::exec(&test::anyDocument)) == std::string()); });
}

TEST(PackageReaderDom, GeneratedPackages)
{
    test::checkProperty(300, [] {
        PackageInfo package = *test::packages(test::texts());
        RC_ASSERT(differenceFromDom(package.saveToManifestContent()) == std::string());
    });
}

TEST(PackageReaderDom, MutatedDocuments)
{
    const std::string bytes = example();
    test::checkProperty(1000, [&bytes] {
        const auto mutated = rc::gen::exec(
            [&bytes] { return test::mutatedDocument(*rc::gen::arbitrary<bool>() ? bytes : test::anyDocument()); });
        RC_ASSERT(differenceFromDom(*mutated) == std::string());
    });
}

TEST(PackageReaderDom, AnExampleTruncatedAtEachByte)
{
    const std::string bytes = example();
    for (std::size_t size = 0; size <= bytes.size(); ++size)
        ASSERT_EQ(differenceFromDom(bytes.substr(0, size)), "") << size;
}

TEST(PackageReaderDom, Examples)
{
    for (const auto& folder : test::examplePackages())
        EXPECT_EQ(differenceFromDom(test::readFile(folder / "manifest.xml")), "");
}

TEST(PackageReaderDom, EncodingsAndByteOrderMarks)
{
    const std::string plain = example().substr(example().find("<package"));
    std::string ascii = plain;
    for (char& c : ascii)
        c = static_cast<unsigned char>(c) < 0x80 ? c : '?';
    for (const char* declared : {"", "UTF-8", "UTF-16", "UTF-16LE", "UTF-32", "ISO-8859-1", "US-ASCII", "Shift_JIS",
                                 "ISO-2022-JP", "EBCDIC", "windows-1252", ""}) {
        const std::string declaration =
            *declared == '\0' ? "" : std::string("<?xml version='1.0' encoding='") + declared + "'?>";
        for (const char* mark : {"", "\xef\xbb\xbf", "\xff\xfe", "\xfe\xff", "\xef\xbb"}) {
            SCOPED_TRACE(declaration + mark);
            EXPECT_EQ(differenceFromDom(mark + declaration + plain), "");
            for (const int width : {2, 4})
                for (const bool bigEndian : {false, true})
                    EXPECT_EQ(differenceFromDom(mark + widened(declaration + ascii, width, bigEndian)), "");
        }
    }
    EXPECT_EQ(differenceFromDom(std::string("\xff\xfe\0\0", 4) + widened(ascii, 4, false)), "");
    EXPECT_EQ(differenceFromDom(std::string("\0\0\xfe\xff", 4) + widened(ascii, 4, true)), "");
    EXPECT_EQ(differenceFromDom("<?xml version='1.0' encoding='ISO-2022-JP'?><p>" + std::string(5000, '\x1b') + "</p>"),
              "");
}

TEST(PackageReaderDom, BrokenUtf8WhereverThePiecesEnd)
{
    // A text is decoded in pieces of some thousand bytes, a file in smaller ones.
    for (const std::string broken :
         {"\xff", "\xe2\x82", "\xf0\x9f\xa4", "\xed\xa0\x80", "\xc0\x80", "\xf0\x9f\xa4\x96"})
        for (std::size_t padding = 0; padding < 8; ++padding) {
            std::string document = "<p author='" + std::string(padding, 'x');
            while (document.size() < 40'000)
                document += broken;
            EXPECT_EQ(differenceFromDom(document + "'/>"), "");
        }
}

} // namespace zu
