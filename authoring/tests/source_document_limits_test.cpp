#include "support/captured_log.hpp"

#include <zupackage/authoring/source_document.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <pthread.h>

namespace zu::authoring {

namespace {

constexpr std::size_t k_MiB = 1024 * 1024;

std::string repeated(std::size_t count, const std::string& text)
{
    std::string result;
    result.reserve(count * text.size());
    for (; count > 0; --count)
        result += text;
    return result;
}

std::string numbered(std::size_t count, const std::string& before, const std::string& behind)
{
    std::string result;
    for (std::size_t i = 0; i < count; ++i)
        result += before + std::to_string(i) + behind;
    return result;
}

/// What a document is refused for; empty when it is not.
std::string refusal(std::string bytes)
{
    const SourceDocument document = SourceDocument::parse(std::move(bytes));
    if (document.isWellFormed())
        return {};
    EXPECT_EQ(document.errors().front().kind, SyntaxErrorKind::Limit);
    return document.errors().front().message;
}

std::string documentType(const std::string& declarations) { return "<!DOCTYPE p [" + declarations + "]>"; }

/// Entities that each refer ten times to the one before.
std::string laughs(const std::string& innermost)
{
    std::string declarations = "<!ENTITY e0 '" + innermost + "'>";
    for (int i = 1; i < 12; ++i)
        declarations +=
            "<!ENTITY e" + std::to_string(i) + " '" + repeated(10, "&e" + std::to_string(i - 1) + ';') + "'>";
    return declarations;
}

const std::string k_tooMany = "more references in a document type than are read";
const std::string k_tooLarge = "entities expand to more than 8 MiB";

} // namespace

TEST(SourceDocumentLimits, ElementsThatAreNestedDeeperAreRefused)
{
    EXPECT_EQ(refusal(repeated(257, "<a>") + repeated(257, "</a>")), "elements nested deeper than 256 levels");
    EXPECT_EQ(refusal(repeated(k_MiB, "<a>")), "elements nested deeper than 256 levels");
}

TEST(SourceDocumentLimits, ADocumentOf64MiBIsRead)
{
    EXPECT_EQ(refusal("<p/>" + std::string(64 * k_MiB - 4, ' ')), "");
}

TEST(SourceDocumentLimits, OfADocumentThatIsTooLargeOnlyTheTextIsThere)
{
    const std::string bytes = "<p/>" + std::string(64 * k_MiB - 3, ' ');
    EXPECT_EQ(refusal(bytes), "the document is larger than 64 MiB");
    const SourceDocument document = SourceDocument::parse(bytes);
    EXPECT_EQ(document.text(), bytes);
    EXPECT_FALSE(document.root());
    EXPECT_FALSE(document.isComplete());
    EXPECT_EQ(document.place(bytes.size()), Place());
}

TEST(SourceDocumentLimits, EntitiesThatMultiplyAreRefused)
{
    for (const char* innermost : {"x", ""}) {
        EXPECT_EQ(refusal(documentType(laughs(innermost)) + "<p>&e11;</p>"), k_tooMany);
        EXPECT_EQ(refusal(documentType(laughs(innermost) + "<!ATTLIST p a CDATA '&e11;'>") + "<p/>"), k_tooMany);
    }
}

TEST(SourceDocumentLimits, EntitiesThatExpandToMoreAreRefusedWhereverTheyStand)
{
    const std::string declared = documentType("<!ENTITY e '" + std::string(4095, 'x') + "'>");
    EXPECT_EQ(refusal(declared + "<p>" + repeated(2049, "&e;") + "</p>"), k_tooLarge);
    EXPECT_EQ(refusal(declared + "<p a='" + repeated(2049, "&e;") + "'/>"), k_tooLarge);
}

TEST(SourceDocumentLimits, ParameterEntitiesThatMultiplyAreRefused)
{
    std::string declarations = "<!ENTITY % p0 '<!---->'>";
    for (int i = 1; i < 12; ++i)
        declarations +=
            "<!ENTITY % p" + std::to_string(i) + " '" + repeated(10, "&#37;p" + std::to_string(i - 1) + ';') + "'>";
    EXPECT_EQ(refusal(documentType(declarations + "%p11;") + "<p/>"), k_tooMany);
}

TEST(SourceDocumentLimits, WhatQXmlStreamReaderTakesLongForIsRefusedBehindADocumentTypeAlone)
{
    const std::string attributes = "<p" + numbered(20'000, " a", "=''") + "/>";
    EXPECT_EQ(refusal(attributes), "");
    EXPECT_EQ(refusal("<!DOCTYPE p>" + attributes),
              "more attributes and namespaces behind a document type than are read");
    const std::string namespaces =
        "<p" + numbered(20'000, " xmlns:n", "='u'") + '>' + repeated(20'000, "<n7:a/>") + "</p>";
    EXPECT_EQ(refusal(namespaces), "");
    EXPECT_EQ(refusal("<!DOCTYPE p>" + namespaces),
              "more attributes and namespaces behind a document type than are read");
}

TEST(SourceDocumentLimits, ThePackageLibraryHasTheSameLimits)
{
    const test::CapturedLog log;
    const std::string declared = documentType("<!ENTITY e '" + std::string(4095, 'x') + "'>");
    const std::pair<bool, std::string> rows[] = {
        {true, repeated(256, "<a>") + repeated(256, "</a>")},
        {false, repeated(257, "<a>") + repeated(257, "</a>")},
        {false, "<p/>" + std::string(64 * k_MiB - 3, ' ')},
        {true, declared + "<p>" + repeated(2048, "&e;") + "</p>"},
        {false, declared + "<p>" + repeated(2049, "&e;") + "</p>"},
    };
    for (const auto& [isRead, bytes] : rows) {
        EXPECT_EQ(PackageInfo().loadFromManifestContent(bytes), isRead) << bytes.size();
        EXPECT_EQ(refusal(bytes).empty(), isRead) << bytes.size();
    }
}

TEST(SourceDocumentLimits, ManyDeclaredAttributesAreRefused)
{
    const auto attributes = [](std::size_t count) { return numbered(count, "<!ATTLIST p a", " CDATA #IMPLIED>"); };
    EXPECT_EQ(refusal(documentType(attributes(1000)) + "<p/>"), "");
    const std::string tooMany = "more attributes declared in a document type than are read";
    EXPECT_EQ(refusal(documentType(attributes(10'000)) + "<p/>"), tooMany);
    EXPECT_EQ(refusal(documentType("<!ENTITY % e \"" + attributes(20) + "\">" + repeated(1000, "%e;")) + "<p/>"),
              tooMany);
}

TEST(SourceDocumentLimits, ASmallStackIsEnough)
{
    const auto parseAll = [](void*) -> void* {
        for (const std::string& bytes :
             {repeated(100'000, "<a>"), "<!DOCTYPE p [<!ELEMENT p " + repeated(100'000, "("),
              "<!DOCTYPE p [<!ELEMENT p " + repeated(50'000, "(") + "a" + repeated(50'000, ")") + ">]><p/>",
              documentType("<!ENTITY a '" + repeated(1000, "<a>") + repeated(1000, "</a>") + "'>") + "<p>&a;</p>",
              documentType(numbered(20, "<!ENTITY e", " '&e1;'>")) + "<p>&e0;</p>"})
            SourceDocument::parse(bytes);
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_attr_init(&attributes);
    pthread_attr_setstacksize(&attributes, 512 * 1024);
    pthread_t thread;
    ASSERT_EQ(pthread_create(&thread, &attributes, parseAll, nullptr), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
}

} // namespace zu::authoring
