#include "support/samples.hpp"

#include <zu/any_value.hpp>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <iomanip>
#include <limits>
#include <optional>
#include <set>
#include <sstream>

namespace zu {

namespace printingtest {

enum class Flavour
{
    Sweet,
    Sour
};

} // namespace printingtest

using printingtest::Flavour;

template <>
struct EnumSchema<Flavour>
{
    static std::vector<Enumerator> describe() { return {{"Sweet", Flavour::Sweet}}; }
};

namespace {

std::string shown(const AnyReferenceBase& value)
{
    std::ostringstream stream;
    stream << value;
    return stream.str();
}

template <class T>
std::string shownOf(const T& object)
{
    return shown(AnyReference::from(object));
}

} // namespace

TEST(Printing, NumbersTextsAndFlags)
{
    EXPECT_EQ(shownOf(-5), "-5");
    EXPECT_EQ(shownOf(std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(shownOf('a'), "97");
    EXPECT_EQ(shownOf(true), "true");
    EXPECT_EQ(shownOf(0.1), "0.1");
    EXPECT_EQ(shownOf(0.1f), "0.1");
    EXPECT_EQ(shownOf(2.0), "2");
    EXPECT_EQ(shownOf(-std::numeric_limits<double>::infinity()), "-inf");
    EXPECT_EQ(shown(AnyValue::from("a \"text\"\\\n\x1b é")), R"("a \"text\"\\\n\x1b é")");
    EXPECT_EQ(shownOf(std::string_view("view")), "\"view\"");
}

TEST(Printing, EnumerationsByName)
{
    EXPECT_EQ(shownOf(Flavour::Sweet), "Sweet");
    EXPECT_EQ(shownOf(Flavour::Sour), "1");
    EXPECT_EQ(shownOf(sample::Colour::Red), "1");
}

TEST(Printing, Containers)
{
    EXPECT_EQ(shownOf(std::vector<int>{1, 2}), "[1, 2]");
    EXPECT_EQ(shownOf(std::vector<int>()), "[]");
    EXPECT_EQ(shownOf(std::set<std::string>{"a"}), "[\"a\"]");
    EXPECT_EQ(shownOf(VarArguments<int>({1})), "[1]");
    EXPECT_EQ(shownOf(std::map<std::string, double>{{"a", 1.5}, {"b", 2}}), "{\"a\": 1.5, \"b\": 2}");
    EXPECT_EQ(shownOf(std::map<int, int>()), "{}");
    EXPECT_EQ(shownOf(std::pair<int, bool>(1, false)), "(1, false)");
    EXPECT_EQ(shownOf(std::tuple<>()), "()");
}

TEST(Printing, StructsByTheirNames)
{
    const sample::Line line{"l", {{1, 2}}, {{"note", AnyValue::from(3)}}};
    EXPECT_EQ(shownOf(line),
              "::sample::Line{name: \"l\", points: [::sample::Point{x: 1, y: 2}], notes: {\"note\": 3}}");
}

TEST(Printing, WhatIsHeldAndNothing)
{
    EXPECT_EQ(shown(AnyValue()), "nothing");
    EXPECT_EQ(shownOf(std::vector<AnyValue>{AnyValue(), AnyValue::from(1)}), "[nothing, 1]");
    EXPECT_EQ(shownOf(std::optional<int>(5)), "5");
    EXPECT_EQ(shownOf(std::optional<int>()), "nothing");
    EXPECT_EQ(shown(AnyValue(typeOf<void>())), "void");
}

TEST(Printing, BytesAsDigits)
{
    EXPECT_EQ(shownOf(Buffer{std::byte{0}, std::byte{255}}), "<2 bytes 00 ff>");
    EXPECT_EQ(shownOf(Buffer(1)), "<1 byte 00>");
    EXPECT_EQ(shownOf(Buffer()), "<0 bytes>");
    EXPECT_EQ(shownOf(Buffer(33)).size(), std::string("<33 bytes").size() + 32 * 3 + std::string(" ...>").size());
}

TEST(Printing, WhatCannotBeReadAsItsType)
{
    int number = 1;
    EXPECT_EQ(shownOf(&number), "<pointer to int>");
    EXPECT_EQ(shownOf(static_cast<int*>(nullptr)), "<null pointer to int>");
    EXPECT_EQ(shownOf(sample::Opaque("x")), "<sample::Opaque>");
    EXPECT_EQ(shownOf(*sample::makeService()), "<sample::Service>");
    EXPECT_EQ(shownOf(std::function<void()>()), "<std::function<void ()>>");
    EXPECT_EQ(shownOf(Signal<int>()), "<zu::Signal<int>>");
    EXPECT_EQ(shownOf(Property<int>()), "<zu::Property<int>>");
    std::vector<int> list{1};
    const AnyIterator begin = AnyReference::from(list).begin();
    EXPECT_EQ(shownOf(begin), "<zu::AnyIterator>");
}

TEST(Printing, DoesNotFollowTheFormatOfTheStreamAndLeavesItAlone)
{
    std::ostringstream stream;
    stream << std::hex << std::showbase << std::setw(12) << std::setfill('*') << AnyValue::from(255) << 255;
    EXPECT_EQ(stream.str(), "255********0xff");
}

TEST(Printing, ValuesWithoutEndAreCutOff)
{
    std::vector<AnyReference> list(1);
    list[0] = AnyReference::from(list);
    EXPECT_EQ(shownOf(list), std::string(65, '[') + "..." + std::string(65, ']'));
    std::vector<AnyReference> wide(100);
    std::fill(wide.begin(), wide.end(), AnyReference::from(wide));
    EXPECT_LT(shownOf(wide).size(), 1'000'000u);
}

TEST(Printing, IsWhatTestsShow)
{
    EXPECT_EQ(testing::PrintToString(AnyValue::from(std::vector<int>{1})), "[1]");
    const std::string text = "t";
    EXPECT_EQ(testing::PrintToString(AnyReference::from(text)), "\"t\"");
}

} // namespace zu
