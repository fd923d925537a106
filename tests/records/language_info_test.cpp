#include <zupackage/language_info.hpp>

#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using L = LanguageInfo;
using Text = const std::string&;
static_assert(std::is_same_v<decltype(std::declval<L&>() = std::declval<const L&>()), L>, "assignment gives a copy");
template <class T, class = void>
constexpr bool isComparable = false;
template <class T>
constexpr bool isComparable<T, std::void_t<decltype(std::declval<T>() == std::declval<T>())>> = true;
static_assert(!isComparable<L>);
static_assert(std::is_same_v<decltype(&L::path), std::string (L::*)() const>);
static_assert(std::is_same_v<decltype(&L::setPath), void (L::*)(Text)>);
static_assert(std::is_same_v<decltype(&L::engineName), std::string (L::*)() const>);
static_assert(std::is_same_v<decltype(&L::setEngineName), void (L::*)(Text)>);
static_assert(std::is_same_v<decltype(&L::engineVersion), std::string (L::*)() const>);
static_assert(std::is_same_v<decltype(&L::setEngineVersion), void (L::*)(Text)>);
static_assert(std::is_same_v<decltype(&L::locale), std::string (L::*)() const>);
static_assert(std::is_same_v<decltype(&L::setLocale), void (L::*)(Text)>);
static_assert(std::is_same_v<decltype(&L::name), std::string (L::*)(Text) const>);
static_assert(std::is_same_v<decltype(&L::setName), void (L::*)(Text, Text)>);

namespace {

LanguageInfo german()
{
    LanguageInfo language;
    language.setPath("lang/de");
    language.setEngineName("engine");
    language.setEngineVersion("2.0");
    language.setLocale("de");
    language.setName("Deutsch", "de");
    return language;
}

void expectGerman(const LanguageInfo& language)
{
    EXPECT_EQ(language.path(), "lang/de");
    EXPECT_EQ(language.engineName(), "engine");
    EXPECT_EQ(language.engineVersion(), "2.0");
    EXPECT_EQ(language.locale(), "de");
    EXPECT_EQ(language.name("de"), "Deutsch");
}

} // namespace

TEST(LanguageInfo, StartsEmpty)
{
    const LanguageInfo language;
    EXPECT_EQ(language.path(), "");
    EXPECT_EQ(language.engineName(), "");
    EXPECT_EQ(language.engineVersion(), "");
    EXPECT_EQ(language.locale(), "");
    EXPECT_EQ(language.name("en"), "");
}

TEST(LanguageInfo, KeepsWhatIsSet) { expectGerman(german()); }

TEST(LanguageInfo, NamesHaveNoFallbackAndAreReplaced)
{
    LanguageInfo language = german();
    EXPECT_EQ(language.name("de_AT"), "");
    language.setName("Hochdeutsch", "de");
    EXPECT_EQ(language.name("de"), "Hochdeutsch");
}

TEST(LanguageInfo, ACopyIsDeep)
{
    const LanguageInfo source = german();
    LanguageInfo copy(source);
    copy.setLocale("fr");
    copy.setName("changed", "de");
    expectGerman(source);
}

TEST(LanguageInfo, AssignmentReturnsAFurtherCopy)
{
    LanguageInfo target;
    LanguageInfo result = (target = german());
    expectGerman(target);
    result.setLocale("fr");
    EXPECT_EQ(target.locale(), "de");
    const LanguageInfo& same = target;
    target = same;
    expectGerman(target);
}

} // namespace zu
