#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/manifests.hpp"

#include <gmock/gmock.h>

using namespace std::string_literals;

namespace zu {

using test::packageFrom;

namespace {

/// A manifest in the given encoding whose author is "é", read from a file.
std::string authorOfFile(const std::string& bytes)
{
    const test::TemporaryFolder folder;
    PackageInfo package;
    EXPECT_TRUE(package.loadFromManifestFile(folder.file("manifest.xml", bytes)));
    return package.author();
}

/// ASCII and Latin-1 characters as UTF-16.
std::string utf16(const std::u16string& text, bool bigEndian)
{
    std::string bytes;
    for (const char16_t c : u"\ufeff" + text) {
        const char high = static_cast<char>(c >> 8);
        const char low = static_cast<char>(c & 0xff);
        bytes += bigEndian ? std::string{high, low} : std::string{low, high};
    }
    return bytes;
}

} // namespace

TEST(PackageReaderEncoding, AFileSaysItsEncodingItself)
{
    EXPECT_EQ(authorOfFile("<?xml version='1.0' encoding='UTF-8'?><p author='\xc3\xa9'/>"), "\xc3\xa9");
    EXPECT_EQ(authorOfFile("<p author='\xc3\xa9'/>"), "\xc3\xa9");
    EXPECT_EQ(authorOfFile("\xef\xbb\xbf<p author='\xc3\xa9'/>"), "\xc3\xa9");
    EXPECT_EQ(authorOfFile("<?xml version='1.0' encoding='ISO-8859-1'?><p author='\xe9'/>"), "\xc3\xa9");
    EXPECT_EQ(authorOfFile(utf16(u"<?xml version='1.0' encoding='UTF-16'?><p author='\u00e9'/>", false)), "\xc3\xa9");
    EXPECT_EQ(authorOfFile(utf16(u"<?xml version='1.0' encoding='UTF-16'?><p author='\u00e9'/>", true)), "\xc3\xa9");
}

TEST(PackageReaderEncoding, TextIsUtf8WhateverItDeclares)
{
    EXPECT_EQ(packageFrom("<?xml version='1.0' encoding='ISO-8859-1'?><p author='\xc3\xa9'/>").author(), "\xc3\xa9");
}

TEST(PackageReaderEncoding, CharactersBeyondTheBasicPlaneSurvive)
{
    EXPECT_EQ(packageFrom("<p author='\xf0\x9f\xa4\x96'/>").author(), "\xf0\x9f\xa4\x96");
}

TEST(PackageReaderEncoding, BrokenUtf8IsRepaired)
{
    EXPECT_EQ(packageFrom("<p author='a\xff"
                          "b'/>")
                  .author(),
              "a\xef\xbf\xbd"
              "b");
}

TEST(PackageReaderEncoding, AZeroByteDoesNotEndTheDocument)
{
    EXPECT_EQ(packageFrom("<p author='a\0b' date='d'/>"s).author(), "a\0b"s);
    EXPECT_EQ(packageFrom("<p author='a\0b' date='d'/>"s).date(), "d");
    const test::CapturedLog log;
    PackageInfo package;
    const std::string garbageBehind = "<p/>\0garbage"s;
    EXPECT_FALSE(package.loadFromManifestContent(garbageBehind));
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_THAT(log.lines().front().message, testing::StartsWith("Syntax error in " + garbageBehind + " at line 1"));
}

TEST(PackageReaderEncoding, InternalEntitiesAreExpanded)
{
    const std::string document = "<!DOCTYPE p [<!ENTITY who 'Ada'><!ENTITY full '&who; L.'>]>"
                                 "<p author='&full;'><names><name lang='en'>by &who;</name></names></p>";
    EXPECT_EQ(packageFrom(document).author(), "Ada L.");
    EXPECT_EQ(packageFrom(document).name("en"), "by Ada");
    EXPECT_EQ(authorOfFile(document), "Ada L.");
}

TEST(PackageReaderEncoding, ExternalEntitiesAreNotFetched)
{
    const test::TemporaryFolder folder;
    const std::string secret = folder.file("secret", "secret");
    const PackageInfo package = packageFrom("<!DOCTYPE p [<!ENTITY x SYSTEM 'file://" + secret +
                                            "'>]><p><names><name lang='en'>a&x;b</name></names></p>");
    EXPECT_EQ(package.name("en"), "ab");
}

TEST(PackageReaderEncoding, NamespacesAndPrefixesChangeNothingForUnprefixedNames)
{
    const std::string document = "<package xmlns='urn:x' xmlns:y='urn:y' uuid='u'><names><name lang='en'>n"
                                 "</name></names><y:names><name lang='en'>no</name></y:names></package>";
    EXPECT_EQ(packageFrom(document).uuid(), "u");
    EXPECT_EQ(packageFrom(document).name("en"), "n");
    const test::TemporaryFolder folder;
    PackageInfo package;
    EXPECT_TRUE(package.loadFromManifestFile(folder.file("manifest.xml", document)));
    EXPECT_EQ(test::dumpOf(package), test::dumpOf(packageFrom(document)));
}

TEST(PackageReaderEncoding, ADuplicateAttributeIsToleratedAsTheParserHasIt)
{
    EXPECT_EQ(packageFrom("<p author='a' author='b'/>").author(), "b");
}

} // namespace zu
