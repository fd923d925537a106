#include "records/behavior_info_p.hpp"
#include "records/private_record.hpp"
#include "support/dom_writer.hpp"
#include "support/files.hpp"
#include "support/generated_packages.hpp"
#include "support/property.hpp"

#include <algorithm>

// What is written is compared with what Qt writes, byte for byte but for the order of attributes.
namespace zu {

namespace {

/// Moves the start tag at `at` from one document to the end of the other, with its attributes sorted.
void moveStartTag(const std::string& document, std::size_t& at, std::string& sorted)
{
    const std::size_t attributesBegin = document.find_first_of(" />", at);
    sorted.append(document, at, attributesBegin - at);
    std::vector<std::string> attributes;
    for (at = attributesBegin; document[at] == ' ';) {
        const std::size_t quote = document.find('"', at);
        const std::size_t end = document.find('"', quote + 1) + 1;
        attributes.push_back(document.substr(at, end - at));
        at = end;
    }
    std::sort(attributes.begin(), attributes.end());
    for (const std::string& attribute : attributes)
        sorted += attribute;
}

std::string withSortedAttributes(const std::string& document)
{
    std::string sorted;
    for (std::size_t at = 0; at < document.size();) {
        if (document.compare(at, 9, "<![CDATA[") == 0) {
            const std::size_t end = document.find("]]>", at);
            sorted.append(document, at, end - at);
            at = end;
        } else if (document[at] == '<' && document[at + 1] != '/' && document[at + 1] != '?') {
            moveStartTag(document, at, sorted);
        } else {
            const std::size_t end = std::min(document.find('<', at + 1), document.size());
            sorted.append(document, at, end - at);
            at = end;
        }
    }
    return sorted;
}

std::string fileContent(const PackageInfo& package, const test::TemporaryFolder& folder)
{
    const std::string path = (folder.path() / "manifest.xml").string();
    EXPECT_TRUE(package.saveToManifestFile(path));
    return test::readFile(path);
}

std::string text(PackageInfo package) { return package.saveToManifestContent(); }

/// A package with permissions and empty lists that come through no public door.
PackageInfo packageThroughNoDoor()
{
    PackageInfo package = *test::packages(test::byteStrings(), test::byteStrings());
    for (BehaviorInfo& behavior : package.behaviors()) {
        BehaviorInfoPrivate& record = PrivateRecord::of(behavior);
        for (const std::string& permission : *rc::gen::container<std::list<std::string>>(3, test::byteStrings()))
            record.permissions.push_back(permission);
        record.langToTags[*test::byteStrings()];
    }
    return package;
}

PackageInfo with(const std::string& text)
{
    PackageInfo package;
    package.setUuid(text);
    package.setName(text, "en");
    BehaviorInfo behavior;
    behavior.addCondition(text, "p");
    package.addBehavior(behavior);
    return package;
}

} // namespace

TEST(PackageWriterBesideQt, SortingComparesEverythingButTheOrderOfAttributes)
{
    EXPECT_EQ(withSortedAttributes("<?x b a?>\n<r b=\"1>\" a=\"/2\"/><c><![CDATA[<r b=\"\" a=\"\">]]></c>"),
              "<?x b a?>\n<r a=\"/2\" b=\"1>\"/><c><![CDATA[<r b=\"\" a=\"\">]]></c>");
}

TEST(PackageWriterBesideQt, GeneratedPackagesAreWrittenAlikeInBothForms)
{
    const test::TemporaryFolder folder;
    test::checkProperty(test::k_inputs, [&folder] {
        const PackageInfo package = packageThroughNoDoor();
        RC_ASSERT(withSortedAttributes(text(package)) == withSortedAttributes(test::textByQt(package)));
        RC_ASSERT(withSortedAttributes(fileContent(package, folder)) ==
                  withSortedAttributes(test::fileContentByQt(package)));
    });
}

TEST(PackageWriterBesideQt, HugeTextsAreWrittenAlikeInBothForms)
{
    const test::TemporaryFolder folder;
    for (const char* piece : {"\xf0\x9f\xa4\x96", "a\xf0\x9f\xa4\x96", "\xe6\x97\xa5", "]]>", "&", "\xed\xa0\xbd"}) {
        std::string huge;
        while (huge.size() < 60'000)
            huge += piece;
        const PackageInfo package = with(huge);
        EXPECT_TRUE(withSortedAttributes(text(package)) == withSortedAttributes(test::textByQt(package))) << piece;
        EXPECT_TRUE(withSortedAttributes(fileContent(package, folder)) ==
                    withSortedAttributes(test::fileContentByQt(package)))
            << piece;
    }
}

} // namespace zu
