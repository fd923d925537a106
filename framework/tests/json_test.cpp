#include "support/samples.hpp"

#include <zu/dispatch.hpp>
#include <zu/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <limits>
#include <memory>
#include <optional>
#include <set>
#include <unordered_map>

namespace zu {

namespace jsontest {

enum class Flavour
{
    Sweet,
    Sour
};

struct Node
{
    int number = 0;
    std::shared_ptr<Node> left;
    std::shared_ptr<Node> right;
};

/// Says that it has two members and names one.
class Misnamed : public StructTypeInterface
{
public:
    Misnamed() : StructTypeInterface(TypeInfo::of<Misnamed>()) {}
    const std::string& className() const override { return m_name; }
    const std::vector<std::string>& elementsName() const override { return m_names; }
    std::vector<const TypeInterface*> memberTypes() const override { return {typeOf<int>(), typeOf<int>()}; }
    AnyReference element(void*, std::size_t) const override { return AnyReference::from(m_number); }
    std::vector<AnyReference> values(void*) const override { return {element(nullptr, 0), element(nullptr, 1)}; }
    void* initializeStorage() const override { return nullptr; }
    void* clone(const void*) const override { return nullptr; }
    void destroy(void*) const override {}

private:
    std::string m_name = "Misnamed";
    std::vector<std::string> m_names{"one"};
    int m_number = 1;
};

} // namespace jsontest

using jsontest::Flavour;
using jsontest::Node;

template <>
struct EnumSchema<Flavour>
{
    static std::vector<Enumerator> describe() { return {{"Sweet", Flavour::Sweet}}; }
};

template <>
struct StructSchema<Node>
{
    static Schema<Node> describe()
    {
        return {"::test::Node", {{"number", &Node::number}, {"left", &Node::left}, {"right", &Node::right}}};
    }
};

namespace {

template <class T>
std::string jsonOf(const T& object)
{
    return toJson(AnyReference::from(object));
}

/// What is said of a value that has no JSON form.
std::string refusalOf(const AnyReferenceBase& value)
{
    try {
        return "became " + toJson(value);
    } catch (const ConversionError& error) {
        return error.what();
    }
}

using Limits = std::numeric_limits<std::int64_t>;

} // namespace

TEST(Json, NothingIsNull)
{
    EXPECT_EQ(toJson(AnyValue()), "null");
    EXPECT_EQ(toJson(AnyReference()), "null");
    EXPECT_EQ(toJson(AnyValue(typeOf<void>())), "null");
    EXPECT_EQ(jsonOf(std::vector<AnyValue>(2)), "[null,null]");
    EXPECT_EQ(jsonOf(std::optional<int>()), "null");
}

TEST(Json, IntegersAreNumbersAsFarAsDoublesAreExact)
{
    EXPECT_EQ(jsonOf(-5), "-5");
    EXPECT_EQ(jsonOf('a'), "97");
    EXPECT_EQ(jsonOf(std::int64_t(9007199254740991)), "9007199254740991");
    EXPECT_EQ(jsonOf(std::int64_t(-9007199254740991)), "-9007199254740991");
    EXPECT_EQ(jsonOf(std::int64_t(9007199254740992)), "\"9007199254740992\"");
    EXPECT_EQ(jsonOf(std::int64_t(-9007199254740992)), "\"-9007199254740992\"");
    EXPECT_EQ(jsonOf(Limits::min()), "\"-9223372036854775808\"");
    EXPECT_EQ(jsonOf(std::uint64_t(9007199254740991)), "9007199254740991");
    EXPECT_EQ(jsonOf(std::numeric_limits<std::uint64_t>::max()), "\"18446744073709551615\"");
}

TEST(Json, FlagsAndEnumerators)
{
    EXPECT_EQ(jsonOf(true), "true");
    EXPECT_EQ(jsonOf(false), "false");
    EXPECT_EQ(jsonOf(Flavour::Sweet), "\"Sweet\"");
    EXPECT_EQ(jsonOf(Flavour::Sour), "1");
}

TEST(Json, FloatsHaveTheDigitsThatTellThemApart)
{
    EXPECT_EQ(jsonOf(0.1), "0.1");
    EXPECT_EQ(jsonOf(0.1f), "0.1");
    EXPECT_EQ(jsonOf(2.0), "2.0");
    EXPECT_EQ(jsonOf(-0.0), "-0.0");
    EXPECT_EQ(jsonOf(1e300), "1e+300");
    EXPECT_EQ(jsonOf(std::numeric_limits<double>::quiet_NaN()), "\"NaN\"");
    EXPECT_EQ(jsonOf(std::numeric_limits<float>::infinity()), "\"Infinity\"");
    EXPECT_EQ(jsonOf(-std::numeric_limits<double>::infinity()), "\"-Infinity\"");
}

TEST(Json, TextsAreUtf8WhateverTheyHold)
{
    EXPECT_EQ(jsonOf(std::string("a \"text\"\\\n\x01 \xc3\xa9/")), "\"a \\\"text\\\"\\\\\\n\\u0001 \xc3\xa9/\"");
    EXPECT_EQ(jsonOf(std::string("a\0b", 3)), "\"a\\u0000b\"");
    EXPECT_EQ(jsonOf(std::string("a\xff\xc3")), "\"a\xef\xbf\xbd\xef\xbf\xbd\"");
    EXPECT_EQ(jsonOf(std::string_view("view")), "\"view\"");
}

TEST(Json, BytesAreBase64)
{
    EXPECT_EQ(jsonOf(Buffer()), "\"\"");
    EXPECT_EQ(jsonOf(Buffer{std::byte{0xff}}), "\"/w==\"");
    EXPECT_EQ(jsonOf(Buffer{std::byte{0}, std::byte{16}}), "\"ABA=\"");
    EXPECT_EQ(jsonOf(Buffer{std::byte{0xfb}, std::byte{0xff}, std::byte{0xbe}}), "\"+/++\"");
    EXPECT_EQ(jsonOf(Buffer(4)), "\"AAAAAA==\"");
}

TEST(Json, Lists)
{
    EXPECT_EQ(jsonOf(std::vector<int>{1, 2}), "[1,2]");
    EXPECT_EQ(jsonOf(std::vector<int>()), "[]");
    EXPECT_EQ(jsonOf(std::set<std::string>{"b", "a"}), "[\"a\",\"b\"]");
    EXPECT_EQ(jsonOf(VarArguments<int>({1})), "[1]");
    EXPECT_EQ(jsonOf(std::make_pair(1, false)), "[1,false]");
    EXPECT_EQ(jsonOf(std::tuple<>()), "[]");
}

TEST(Json, MapsWithTextKeysAreObjectsInTheirOrder)
{
    EXPECT_EQ(jsonOf(std::map<std::string, double>{{"b", 2}, {"a", 1.5}}), R"({"a":1.5,"b":2.0})");
    EXPECT_EQ(jsonOf(std::map<std::string, int>()), "{}");
    EXPECT_EQ(jsonOf(std::unordered_map<std::string, int>{{"a", 1}}), R"({"a":1})");
}

TEST(Json, MapsWithOtherKeysAreListsOfPairs)
{
    EXPECT_EQ(jsonOf(std::map<int, bool>{{1, true}, {2, false}}), "[[1,true],[2,false]]");
    EXPECT_EQ(jsonOf(std::map<int, int>()), "[]");
    EXPECT_EQ(jsonOf(std::map<AnyValue, int>{{AnyValue::from("a"), 1}}), R"([["a",1]])");
}

TEST(Json, StructsAreObjectsInTheOrderOfTheirMembers)
{
    const sample::Line line{"l", {{1, 2}}, {{"note", AnyValue::from(3)}}};
    EXPECT_EQ(jsonOf(line), R"({"name":"l","points":[{"x":1,"y":2}],"notes":{"note":3}})");
    EXPECT_EQ(jsonOf(sample::WidePoint{2, 0.5}), R"({"y":2,"x":0.5})");
}

TEST(Json, WrappersAndPointersAreWhatTheyHold)
{
    int number = 5;
    EXPECT_EQ(jsonOf(&number), "5");
    EXPECT_EQ(jsonOf(static_cast<int*>(nullptr)), "null");
    EXPECT_EQ(jsonOf(std::make_shared<std::string>("s")), "\"s\"");
    EXPECT_EQ(jsonOf(std::shared_ptr<int>()), "null");
    EXPECT_EQ(jsonOf(std::optional<int>(5)), "5");
    EXPECT_EQ(toJson(AnyValue::from(AnyValue::from(std::optional<bool>(true)))), "true");
    EXPECT_EQ(jsonOf(Node{1, std::make_shared<Node>(), nullptr}),
              R"({"number":1,"left":{"number":0,"left":null,"right":null},"right":null})");
}

TEST(Json, WhatHasNoFormIsRefusedWithTypeAndPath)
{
    EXPECT_EQ(refusalOf(AnyValue::from(sample::Opaque("x"))),
              "Cannot convert sample::Opaque to JSON: sample::Opaque has no JSON form");
    EXPECT_EQ(refusalOf(AnyReference::from(*sample::makeService())),
              "Cannot convert sample::Service to JSON: sample::Service has no JSON form");
    EXPECT_EQ(refusalOf(AnyValue::from(Signal<int>())),
              "Cannot convert zu::Signal<int> to JSON: zu::Signal<int> has no JSON form");
    EXPECT_EQ(refusalOf(AnyValue::from(Property<int>())),
              "Cannot convert zu::Property<int> to JSON: zu::Property<int> has no JSON form");
    EXPECT_EQ(refusalOf(AnyValue::from(std::function<void()>())),
              "Cannot convert std::function<void ()> to JSON: std::function<void ()> has no JSON form");
    std::vector<int> list{1};
    const AnyIterator begin = AnyReference::from(list).begin();
    EXPECT_THAT(refusalOf(AnyReference::from(begin)), testing::EndsWith("zu::AnyIterator has no JSON form"));
    const sample::Line line{"l", {}, {{"a", AnyValue::from(std::vector<AnyValue>{{}, AnyValue::from(Signal<int>())})}}};
    EXPECT_EQ(refusalOf(AnyReference::from(line)),
              "Cannot convert ::sample::Line to JSON at .notes[\"a\"][1]: zu::Signal<int> has no JSON form");
    const std::map<AnyValue, int> keyed{{AnyValue::from(sample::Opaque("x")), 1}};
    EXPECT_THAT(refusalOf(AnyReference::from(keyed)), testing::HasSubstr(" to JSON at {0}(key): sample::Opaque has"));
    const std::pair<int, sample::Opaque> pair{1, sample::Opaque("x")};
    EXPECT_THAT(refusalOf(AnyReference::from(pair)), testing::HasSubstr(" to JSON at [1]: sample::Opaque has"));
}

TEST(Json, KeysThatAreNoUtf8AreRefused)
{
    const std::map<std::string, int> map{{"\xff", 1}};
    EXPECT_THAT(refusalOf(AnyReference::from(map)), testing::EndsWith("(key): the key is no UTF-8"));
}

TEST(Json, AnInterfaceThatIsWrongInItselfIsRefused)
{
    const jsontest::Misnamed type;
    int value = 0;
    EXPECT_EQ(refusalOf(AnyReference(&type, &value)),
              "Cannot convert Misnamed to JSON: Misnamed has not as many names as members");
}

TEST(Json, ValuesWithoutEndAreRefused)
{
    std::vector<AnyReference> list(1);
    list[0] = AnyReference::from(list);
    EXPECT_THAT(refusalOf(AnyReference::from(list)), testing::EndsWith("the value is nested deeper than 64 levels"));
    auto node = std::make_shared<Node>();
    node->left = node;
    EXPECT_THAT(refusalOf(AnyReference::from(node)), testing::EndsWith("the value is nested deeper than 64 levels"));
    node->left = nullptr;
}

TEST(Json, PartsThatPointersShareAreWrittenAgainOnlySoOften)
{
    const auto chain = [](int levels) {
        auto node = std::make_shared<Node>();
        for (int i = 0; i != levels; ++i)
            node = std::make_shared<Node>(Node{i, node, node});
        return node;
    };
    const std::string few = jsonOf(chain(3));
    EXPECT_EQ(std::count(few.begin(), few.end(), '{'), 15);
    EXPECT_THAT(refusalOf(AnyValue::from(chain(40))),
                testing::EndsWith("the value refers to parts of itself in more than 100000 ways"));
}

} // namespace zu
