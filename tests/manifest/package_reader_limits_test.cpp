#include "support/build_kind.hpp"
#include "support/captured_log.hpp"
#include "support/files.hpp"
#include "support/manifests.hpp"

#include <gmock/gmock.h>

namespace zu {

namespace {

std::string repeated(int count, const std::string& text)
{
    std::string result;
    result.reserve(static_cast<std::size_t>(count) * text.size());
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

/// `count` texts, each made from its number.
template <class Make>
std::string numbered(int count, Make make)
{
    std::string result;
    for (int i = 0; i < count; ++i)
        result += make(std::to_string(i));
    return result;
}

std::string withEntities(const std::string& declarations, const std::string& content)
{
    return "<!DOCTYPE p [" + declarations + "]><p>" + content + "</p>";
}

/// Reads the document as text and as a file: both are read, or both are refused with these words at their end.
void expectOutcome(const std::string& document, const std::string& refusal)
{
    const test::CapturedLog log;
    const test::TemporaryFolder folder;
    PackageInfo package;
    const bool allowed = refusal.empty();
    EXPECT_EQ(package.loadFromManifestContent(document), allowed);
    EXPECT_EQ(package.loadFromManifestFile(folder.file("manifest.xml", document)), allowed);
    ASSERT_EQ(log.lines().size(), allowed ? 0u : 2u);
    for (const test::LogLine& line : log.lines()) {
        EXPECT_EQ(line.message.compare(0, 16, "Syntax error in "), 0);
        EXPECT_THAT(line.message.substr(line.message.size() - std::min<std::size_t>(line.message.size(), 120)),
                    testing::EndsWith(": " + refusal));
    }
}

void expectRead(const std::string& document) { expectOutcome(document, {}); }

/// Refused for its names and entities, in the words for a document of that size.
void expectTooManySteps(const std::string& document)
{
    expectOutcome(document, "more than " + std::to_string((std::size_t(1) << 28) + 32 * document.size()) +
                                " steps of comparing names and expanding entities");
}

/// The same for what it holds.
void expectTooMuchMemory(const std::string& document, std::size_t bytesPerByte)
{
    expectOutcome(document, "nodes and attributes of more than " +
                                std::to_string(128 + bytesPerByte * document.size() / (1024 * 1024)) + " MiB");
}

std::string ofSize(std::size_t size)
{
    std::string document = "<p/>";
    document.resize(size, ' ');
    return document;
}

constexpr std::size_t k_largestSize = 64 * 1024 * 1024;

/// Documents that are only larger than those of other tests.
class PackageReaderLargeDocument : public testing::Test
{
protected:
    void SetUp() override
    {
        if (test::k_sanitized)
            GTEST_SKIP() << "takes minutes in this build";
    }
};

} // namespace

TEST(PackageReaderLimit, DocumentSize)
{
    expectOutcome(ofSize(k_largestSize + 1), "the document is larger than 64 MiB");
}

TEST_F(PackageReaderLargeDocument, OfTheLargestSizeIsRead) { expectRead(ofSize(k_largestSize)); }

TEST(PackageReaderLimit, LevelsOfElements)
{
    expectRead(repeated(256, "<a>") + repeated(256, "</a>"));
    expectRead("<p>" + repeated(1000, "<a><b/></a>") + "</p>");
    expectOutcome(repeated(257, "<a>") + repeated(257, "</a>"), "elements nested deeper than 256 levels");
    expectOutcome(repeated(1'000'000, "<a>"), "elements nested deeper than 256 levels");
}

TEST(PackageReaderLimit, LevelsOfElementsInsideEntities)
{
    const auto chain = [](int length) {
        const auto entity = [](const std::string& i) {
            const std::string next = i == "0" ? "" : "&e" + std::to_string(std::stoi(i) - 1) + ";";
            return "<!ENTITY e" + i + " '<a>" + next + "</a>'>";
        };
        return withEntities(numbered(length, entity), "&e" + std::to_string(length - 1) + ";");
    };
    expectRead(chain(255));
    expectOutcome(chain(256), "elements nested deeper than 256 levels");
}

TEST(PackageReaderLimit, LevelsOfGroupsInAContentModel)
{
    const auto model = [](int depth) {
        return "<!DOCTYPE p [<!ELEMENT p " + repeated(depth, "(") + "a" + repeated(depth, ")") + ">]><p/>";
    };
    const std::string refusal = "groups of a content model nested deeper than 256 levels";
    expectRead(model(256));
    expectRead("<!DOCTYPE p [" + repeated(1000, "<!ELEMENT p (a,(b|c))>") + "]><p/>");
    expectRead("<p author='" + repeated(1000, "(") + "'/>");
    expectOutcome(model(257), refusal);
    expectOutcome(model(1'000'000), refusal);
    expectRead("<!DOCTYPE p [<!-- " + repeated(1000, "(") + " --><!ENTITY e '" + repeated(1000, ":(") +
               "'>]><p>&e;</p>");
    const auto hidden = [](const std::string& text) {
        return "<!DOCTYPE p [<!ENTITY % m \"" + text + "\"> %m; ]><p/>";
    };
    expectOutcome(hidden("&#60;!ELEMENT p " + repeated(1'000'000, "&#40;")), refusal);
    expectOutcome("<!DOCTYPE p [<!ENTITY % m '<!ELEMENT p ('> %m; " + repeated(1'000'000, "("), refusal);
}

TEST(PackageReaderLimit, NamespacesCountWhileTheyAreInScope)
{
    const auto prefix = [](const std::string& i) { return "xmlns:n" + i + "='u' "; };
    const std::string root = "<p " + numbered(256, prefix) + ">";
    expectRead("<p>" + repeated(20'000, "<y:a xmlns:y='u' xmlns='v'/>") + "</p>");
    expectRead(root + repeated(100, "<n0:a/>") + "</p>");
    // Without prefixed elements, they cost nothing.
    expectRead(root + repeated(17'000, "<a/>") + "</p>");
}

TEST(PackageReaderLimit, NamespacesOfPrefixedElementsAreLookedForAgainAndAgain)
{
    const auto prefix = [](const std::string& i) { return "xmlns:n" + i + "='u' "; };
    const std::string document = "<p " + numbered(256, prefix) + ">" + repeated(17'000, "<n0:a/>") + "</p>";
    const test::CapturedLog log;
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestContent(document));
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_THAT(log.lines().front().message, testing::EndsWith(" steps of comparing names and expanding entities"));
    // A file is read without namespaces.
    const test::TemporaryFolder folder;
    EXPECT_TRUE(package.loadFromManifestFile(folder.file("manifest.xml", document)));
}

TEST(PackageReaderLimit, AttributesOfAnElement)
{
    const auto attribute = [](const std::string& i) { return "a" + i + "='' "; };
    expectRead("<p " + numbered(10'000, attribute) + "/>");
    expectRead("<p>" + repeated(1100, "<a " + numbered(100, attribute) + "/>") + "</p>");
    expectRead("<!DOCTYPE p><p>" + repeated(50, "<a " + numbered(300, attribute) + "/>") + "</p>");
    expectRead("<y:p>" + repeated(100, "<y:a " + numbered(100, attribute) + "/>") + "</y:p>");
    expectTooManySteps("<!DOCTYPE p><p " + numbered(20'000, attribute) + "/>");
}

TEST_F(PackageReaderLargeDocument, MayHaveAttributesUpToALimit)
{
    expectTooMuchMemory("<p " + repeated(4'200'000, "a='' ") + "/>", 16);
}

TEST(PackageReaderLimit, DeclarationsOfEntities)
{
    const auto entity = [](const std::string& i) { return "<!ENTITY e" + i + " 'x'>"; };
    const auto notation = [](const std::string& i) { return "<!NOTATION n" + i + " SYSTEM 'x'>"; };
    const auto unparsed = [](const std::string& i) { return "<!ENTITY u" + i + " SYSTEM 'x' NDATA n0>"; };
    expectRead(withEntities(numbered(1000, entity), "&e0;"));
    expectRead(withEntities(numbered(3000, notation) + numbered(3000, unparsed), ""));
    expectTooManySteps(withEntities(numbered(5000, entity), ""));
}

TEST(PackageReaderLimit, SearchingTheTextsOfEntities)
{
    const auto referring = [](int references) {
        return withEntities("<!ENTITY e ''><!ENTITY f '" + repeated(references, "&e;") + "'><!ENTITY g ''>", "&f;");
    };
    expectRead(referring(5'000));
    expectTooManySteps(referring(1'000'000));
}

TEST_F(PackageReaderLargeDocument, MayHaveALargeEntityBehindAFewOthers)
{
    const auto entity = [](const std::string& i) { return "<!ENTITY e" + i + " ''>"; };
    const std::string large = "<!ENTITY large '" + std::string(8 * 1024 * 1024, 'x') + "'>";
    expectRead(withEntities(large, "&large;"));
    expectTooManySteps(withEntities(numbered(1000, entity) + large, ""));
}

TEST(PackageReaderLimit, Nodes)
{
    expectRead("<p>" + repeated(20'000, "<a/>t<!--c-->") + "</p>");
    expectTooMuchMemory("<!DOCTYPE p><p>" + repeated(500'000, "<a/>") + "</p>", 24);
}

TEST_F(PackageReaderLargeDocument, MayHaveNodesUpToALimit)
{
    expectRead("<p>" + repeated(300'000, "<a/>t<!--c-->") + "</p>");
    expectRead("<p>" + repeated(4'200'000, "<a/>") + "</p>");
    expectRead("<p>" + repeated(5'000'000, "&amp;") + "</p>");
    expectRead("<p>" + std::string(4'000'000, '=') + "<a b='" + std::string(4'000'000, '=') + "'/></p>");
    expectTooMuchMemory("<!DOCTYPE p><p>" + repeated(4'200'000, "<a/>") + "</p>", 24);
}

TEST(PackageReaderLimit, ExpandedEntitiesInTextAndAttributes)
{
    const std::string entity = "<!ENTITY e '" + std::string(4096, 'x') + "'><!ENTITY last ''>";
    const std::string refusal = "entities expand to more than 8 MiB";
    expectRead(withEntities(entity, repeated(2048, "&e;")));
    expectOutcome(withEntities(entity, repeated(2049, "&e;")), refusal);
    expectOutcome(withEntities(entity, repeated(100'000, "&e;")), refusal);
    expectOutcome(withEntities(entity, "<a b='" + repeated(2049, "&e;") + "'/>"), refusal);
    expectOutcome("<!DOCTYPE p [<!ENTITY only '" + std::string(100'000, 'x') + "'>]><p>" + repeated(1000, "&only;") +
                      "</p>",
                  refusal);
}

TEST(PackageReaderLimit, EntitiesThatExpandExponentially)
{
    const auto entity = [](const std::string& i) {
        const std::string next = i == "0" ? "lol" : repeated(10, "&e" + std::to_string(std::stoi(i) - 1) + ";");
        return "<!ENTITY e" + i + " '" + next + "'>";
    };
    const test::CapturedLog log;
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestContent(withEntities(numbered(10, entity), "&e9;")));
    EXPECT_EQ(log.lines().size(), 1u);
}

TEST(PackageReaderLimit, ManyLanguagesAreReadInLinearTime)
{
    const auto language = [](const std::string& i) { return "<l>" + i + "</l>"; };
    const auto container = [](const std::string& i) {
        return "<descriptionLanguages><l>" + i + "</l></descriptionLanguages>";
    };
    const PackageInfo package =
        test::packageFrom("<p><supportedLanguages>" + numbered(200'000, language) + numbered(10, language) +
                          "</supportedLanguages>" + numbered(50'000, container) + container("7") + "</p>");
    EXPECT_EQ(package.supportedLanguages().size(), 200'000u);
    EXPECT_EQ(package.descriptionLanguages().size(), 50'000u);
}

TEST(PackageReaderLimit, ASyntaxErrorBeforeTheLimitIsReportedInTheParsersWords)
{
    expectOutcome("<p></q>" + repeated(300, "<a>"), "tag mismatch");
}

TEST(PackageReaderLimit, TheFailureNamesThePlace)
{
    const test::CapturedLog log;
    PackageInfo package;
    const std::string document = repeated(256, "<a>") + "\n  <b/>";
    EXPECT_FALSE(package.loadFromManifestContent(document));
    ASSERT_EQ(log.lines().size(), 1u);
    EXPECT_EQ(log.lines().front().message,
              "Syntax error in " + document + " at line 2, column 5: elements nested deeper than 256 levels");
}

} // namespace zu
