#include "characters.hpp"
#include "white_space.hpp"

#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

namespace zupackage::authoring {

namespace {

constexpr char32_t k_lastOfBasicPlane = 0xFFFF;

std::string textOf(char32_t codePoint)
{
    std::string text;
    appendUtf8(codePoint, text);
    return text;
}

/// Calls `visit(character, what the reader makes of a name of it)`; `nameOf(character)` is that name's source.
template <typename NameOf, typename Visit>
void forEachCharacterRead(NameOf nameOf, Visit visit)
{
    std::string manifest = "<package><names>";
    for (char32_t c = 1; c <= k_lastOfBasicPlane; ++c) {
        if (isAllowed(c))
            manifest += "<name lang='" + std::to_string(c) + "'>" + nameOf(c) + "</name>";
    }
    zu::PackageInfo package;
    ASSERT_TRUE(zu::readManifest(manifest + "</names></package>", package));
    for (char32_t c = 1; c <= k_lastOfBasicPlane; ++c) {
        if (isAllowed(c))
            visit(c, package.name(std::to_string(c)));
    }
}

std::string referenceTo(char32_t c) { return "&#" + std::to_string(c) + ";"; }

} // namespace

TEST(WhiteSpace, IsWhatTheReaderDrops)
{
    forEachCharacterRead(&referenceTo, [](char32_t c, const std::string& name) {
        EXPECT_EQ(isBlank(textOf(c)), name.empty()) << c;
        EXPECT_EQ(trimmed(textOf(c)), name) << c;
    });
}

TEST(WhiteSpace, IsKeptBesideSomethingElse)
{
    forEachCharacterRead([](char32_t c) { return "a" + referenceTo(c); },
                         [](char32_t c, const std::string& name) {
                             EXPECT_EQ(name, "a" + textOf(c));
                             EXPECT_FALSE(isBlank(name));
                         });
}

TEST(WhiteSpace, IsTakenFromBothEnds)
{
    EXPECT_EQ(trimmed("\t\xE3\x80\x80 a\xC2\xA0 z\xE2\x80\x83\n"), "a\xC2\xA0 z");
    EXPECT_EQ(trimmed("\xC3\xA9"), "\xC3\xA9");
    EXPECT_EQ(trimmed(" \xC2\xA0 "), "");
}

TEST(WhiteSpace, IsNoneInBytesThatAreNoCharacter)
{
    for (const char* bytes : {"\xC2", "\xA0", "\x82\xA0", "\xC2 ", "\xE3\x80", "\xE3\x80 ", "\xF0\x9F\x98\x80",
                              "\xC0\xA0", "\xE0\x80\xA0", "\xE0\x82\xA0"}) {
        EXPECT_FALSE(isBlank(bytes)) << bytes;
        EXPECT_EQ(trimmed(bytes).substr(0, 1), std::string(bytes).substr(0, 1));
    }
}

} // namespace zupackage::authoring
