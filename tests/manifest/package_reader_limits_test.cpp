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

constexpr char k_tooManySteps[] = "more than 1073741824 steps of comparing names";

} // namespace

TEST(PackageReaderLimit, DocumentSize)
{
    constexpr std::size_t k_limit = 64 * 1024 * 1024;
    std::string document = "<p/>";
    document.resize(k_limit, ' ');
    expectRead(document);
    expectOutcome(document + ' ', "the document is larger than 64 MiB");
}

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

TEST(PackageReaderLimit, NamespaceDeclarations)
{
    const auto element = [](const std::string& i) { return "<a xmlns:n" + i + "='u' xmlns='v' xmlnsx='no'/>"; };
    const std::string refusal = "more than 256 namespace declarations";
    expectRead("<p>" + numbered(128, element) + "</p>");
    expectOutcome("<p xmlns='u'>" + numbered(128, element) + "</p>", refusal);
    expectOutcome("<p " + numbered(20'000, [](const std::string& i) { return "xmlns:n" + i + "='u' "; }) + "/>",
                  refusal);
}

TEST(PackageReaderLimit, AttributesOfAnElement)
{
    const auto attribute = [](const std::string& i) { return "a" + i + "='' "; };
    expectRead("<p " + numbered(1024, attribute) + "/>");
    expectOutcome("<p " + numbered(1025, attribute) + "/>", "more than 1024 attributes in an element");
}

TEST(PackageReaderLimit, DeclarationsOfEntitiesAndNotations)
{
    const std::string refusal = "more than 1024 declarations of entities and notations";
    const auto entity = [](const std::string& i) { return "<!ENTITY e" + i + " 'x'>"; };
    const auto external = [](const std::string& i) { return "<!ENTITY x" + i + " SYSTEM 'x'>"; };
    const auto notation = [](const std::string& i) { return "<!NOTATION n" + i + " SYSTEM 'x'>"; };
    const auto unparsed = [](const std::string& i) { return "<!ENTITY u" + i + " SYSTEM 'x' NDATA n0>"; };
    expectRead(withEntities(numbered(1024, entity), "&e0;"));
    expectRead(withEntities(
        numbered(256, entity) + numbered(256, external) + numbered(256, notation) + numbered(256, unparsed), ""));
    expectOutcome(withEntities(numbered(1025, entity), ""), refusal);
    expectOutcome(withEntities(numbered(1025, external), ""), refusal);
    expectOutcome(withEntities(numbered(1025, notation), ""), refusal);
    expectOutcome(withEntities(notation("0") + numbered(1024, unparsed), ""), refusal);
}

TEST(PackageReaderLimit, SearchingTheTextsOfEntities)
{
    const auto referring = [](int references) {
        return withEntities("<!ENTITY e ''><!ENTITY f '" + repeated(references, "&e;") + "'><!ENTITY g ''>", "&f;");
    };
    expectRead(referring(10'000));
    expectOutcome(referring(1'000'000), k_tooManySteps);
    const auto entity = [](const std::string& i) { return "<!ENTITY e" + i + " ''>"; };
    const std::string large = "<!ENTITY large '" + std::string(8 * 1024 * 1024, 'x') + "'>";
    expectRead(withEntities(large, "&large;"));
    expectOutcome(withEntities(numbered(1000, entity) + large, ""), k_tooManySteps);
}

TEST(PackageReaderLimit, ComparingAttributesAndNamespacePrefixes)
{
    const auto attribute = [](const std::string& i) { return "a" + i + "='' "; };
    const std::string element = "<a " + numbered(1000, attribute) + "/>";
    expectRead("<p>" + repeated(100, element) + "</p>");
    expectOutcome("<p>" + repeated(1100, element) + "</p>", k_tooManySteps);
    const auto prefix = [](const std::string& i) { return "xmlns:n" + i + "='u' "; };
    const std::string root = "<p " + numbered(256, prefix) + ">";
    expectRead(root + repeated(1000, "<a/>") + "</p>");
    expectOutcome(root + repeated(17'000, "<a/>") + "</p>", k_tooManySteps);
    expectOutcome("<!DOCTYPE p [<!ENTITY e '" + repeated(1000, "<a/>") + "'>]>" + root + repeated(100, "&e;") + "</p>",
                  k_tooManySteps);
}

TEST(PackageReaderLimit, Nodes)
{
    const std::string refusal = "more than 4194304 nodes";
    expectRead("<p>" + repeated(300'000, "<a/>t<!--c-->") + "</p>");
    expectOutcome("<p>" + repeated(4'200'000, "<a/>") + "</p>", refusal);
    expectOutcome("<p>" + repeated(4'200'000, "<?a?>") + "</p>", refusal);
    expectOutcome("<p>" + repeated(4'200'000, "&x;") + "</p>", refusal);
    expectOutcome("<p " + repeated(4'200'000, "a='' ") + "/>", refusal);
    expectRead("<p>" + std::string(4'000'000, '=') + "<a b='" + std::string(4'000'000, '=') + "'/></p>");
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
