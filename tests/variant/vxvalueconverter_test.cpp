#include "support/captured_log.hpp"
#include "variant/vxconversion.hpp"

#include <zu/any_value.hpp>

#include <boost/make_shared.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <list>
#include <map>
#include <memory>
#include <optional>
#include <tuple>

namespace VX {

/// A struct with member names.
struct Place
{
    std::string name;
    int floor = 0;
};

/// An object class.
struct Motor
{
    int speed = 0;
};

/// A class that the type system knows nothing of.
struct Stranger
{
    int value = 0;
};

/// Wrong in itself: three values, two names.
class LopsidedType : public zu::Native<Stranger, zu::StructTypeInterface>
{
public:
    const std::string& className() const override { return m_className; }
    const std::vector<std::string>& elementsName() const override { return m_names; }
    std::vector<const zu::TypeInterface*> memberTypes() const override { return {3, zu::typeOf<int>()}; }
    zu::AnyReference element(void* value, std::size_t /*index*/) const override
    {
        return zu::AnyReference::from(object(value).value);
    }
    std::vector<zu::AnyReference> values(void* value) const override { return {3, element(value, 0)}; }

private:
    const std::string m_className = "Lopsided";
    const std::vector<std::string> m_names = {"a", "b"};
};

/// A type of a kind that the framework may get one day.
template <int number>
class LaterKind : public zu::TypeInterface
{
protected:
    LaterKind(const zu::TypeInfo& info, std::size_t wordSize)
        : zu::TypeInterface(info, static_cast<zu::TypeKind>(number), wordSize)
    {
    }
};

template <int number>
class LaterType final : public zu::Native<Stranger, LaterKind<number>>
{
};

namespace {

using test::conversionError;
using test::converted;
using test::refusal;
using test::shown;
using zu::test::CapturedLog;
using zu::test::LogLine;

[[maybe_unused]] const bool g_placeRegistered =
    zu::registerStruct<Place>("::test::Place", {{"name", &Place::name}, {"floor", &Place::floor}});
[[maybe_unused]] const bool g_motorRegistered = zu::registerObject<Motor>();

void expectDispatcherWarning(const LogLine& line, const std::string& message)
{
    EXPECT_EQ(line.level, zu::log::Level::Warning);
    EXPECT_EQ(line.category, "zutype.typedispatcher");
    EXPECT_EQ(line.message, message);
}

} // namespace

TEST(VXConversion, AFrameworkBoolIsABool)
{
    EXPECT_EQ(converted(true).type(), VXValue::Type::Bool);
    EXPECT_EQ(shown(true), "true");
    EXPECT_EQ(shown(false), "false");
}

TEST(VXConversion, EveryOtherIntegerKeepsItsLow32Bits)
{
    EXPECT_EQ(converted(std::int8_t(-1)).type(), VXValue::Type::Int);
    EXPECT_EQ(shown(std::int8_t(-1)), "-1");
    EXPECT_EQ(shown(std::uint8_t(255)), "255");
    EXPECT_EQ(shown(std::uint32_t(0xffffffff)), "-1");
    EXPECT_EQ(shown(std::int64_t(0x100000007)), "7");
    EXPECT_EQ(shown(std::int64_t(0x80000000)), "-2147483648");
    EXPECT_EQ(shown(std::numeric_limits<std::int64_t>::min()), "0");
    EXPECT_EQ(shown(std::numeric_limits<std::uint64_t>::max()), "-1");
    EXPECT_EQ(shown(std::uint64_t(0x8000000000000005)), "5");
}

TEST(VXConversion, FloatsAreNarrowed)
{
    EXPECT_EQ(converted(0.1).type(), VXValue::Type::Float);
    EXPECT_EQ(shown(0.1F), "0.1");
    EXPECT_EQ(shown(1e300), "inf");
    EXPECT_EQ(shown(std::numeric_limits<double>::quiet_NaN()), "nan");
}

TEST(VXConversion, TextsKeepTheirLength)
{
    using namespace std::string_literals;
    EXPECT_EQ(shown("a\0b"s), "\"a\0b\""s);
    EXPECT_EQ(shown(std::string()), "\"\"");
}

TEST(VXConversion, ListsAndVariableArgumentsBecomeArrays)
{
    EXPECT_EQ(shown(std::vector<int>{1, 2}), "[1, 2]");
    EXPECT_EQ(shown(std::list<std::vector<int>>{{1}, {}, {2, 3}}), "[[1], [], [2, 3]]");
    EXPECT_EQ(shown(zu::VarArguments<std::string>()), "[]");
    EXPECT_EQ(shown(zu::VarArguments<std::string>({"a", "b"})), "[\"a\", \"b\"]");
    EXPECT_EQ(converted(std::vector<std::string>()).type(), VXValue::Type::Array);
}

TEST(VXConversion, MapsBecomePairsInTheirOrder)
{
    EXPECT_EQ(shown(std::map<std::string, int>{{"b", 2}, {"a", 1}}), "[[\"a\", 1], [\"b\", 2]]");
    EXPECT_EQ(shown(std::map<int, bool>{}), "[]");
}

TEST(VXConversion, TuplesAreConvertedByPositionAndStructsByName)
{
    EXPECT_EQ(shown(std::make_pair(1, std::string("a"))), "[1, \"a\"]");
    EXPECT_EQ(shown(std::make_tuple(1, 2, true)), "[1, 2, true]");
    EXPECT_EQ(shown(Place{"lab", 3}), "[[\"name\", \"lab\"], [\"floor\", 3]]");
}

TEST(VXConversion, AStructWithAnotherNumberOfNamesIsRefused)
{
    static const auto& lopsided = *new LopsidedType;
    Stranger stranger;
    try {
        zu::AnyReference(&lopsided, &stranger).to<VXValue>();
        FAIL();
    } catch (const VXError& error) {
        EXPECT_EQ(error.what(), conversionError("Mismatch struct size. size(variableName) != size(value)"));
    }
}

TEST(VXConversion, DynamicsBecomeWhatTheyHold)
{
    EXPECT_EQ(shown(zu::AnyValue::from(5)), "5");
    EXPECT_EQ(shown(std::vector<zu::AnyValue>{zu::AnyValue::from(1), zu::AnyValue::from(std::string("a"))}),
              "[1, \"a\"]");
}

TEST(VXConversion, ABinaryHasRoomForMoreBytes)
{
    const VXValue value = converted(zu::Buffer{std::byte{1}, std::byte{2}});
    EXPECT_GE(value.toBinary().capacity(), 2u + 1024u);
}

TEST(VXConversion, BytesBecomeABinary)
{
    EXPECT_EQ(shown(zu::Buffer{std::byte{0}, std::byte{255}}), "\\0\\255");
    EXPECT_EQ(converted(zu::Buffer()).type(), VXValue::Type::Binary);
}

TEST(VXConversion, VoidBecomesInvalid)
{
    const zu::AnyReference nothing(zu::typeOf<void>(), nullptr);
    EXPECT_EQ(nothing.to<VXValue>().type(), VXValue::Type::Invalid);
}

TEST(VXConversion, ObjectsPointersIteratorsOptionalsAndUnknownTypesAreRefused)
{
    int number = 1;
    Motor motor;
    std::vector<int> list{1};
    EXPECT_EQ(refusal(Motor()), conversionError("object type not handled"));
    EXPECT_EQ(refusal(std::make_shared<Motor>()), conversionError("object type not handled"));
    EXPECT_EQ(refusal(std::shared_ptr<Motor>()), conversionError("pointer type not handled"));
    EXPECT_EQ(refusal(std::make_shared<int>(1)), conversionError("pointer type not handled"));
    EXPECT_EQ(refusal(&number), conversionError("pointer type not handled"));
    EXPECT_EQ(refusal(&motor), conversionError("pointer type not handled"));
    EXPECT_EQ(refusal(boost::make_shared<Motor>()), conversionError("object type not handled"));
    EXPECT_EQ(refusal(zu::Object<zu::Empty>(std::make_shared<Motor>())), conversionError("object type not handled"));
    EXPECT_EQ(refusal(zu::Object<zu::Empty>()), conversionError("object type not handled"));
    EXPECT_EQ(refusal(zu::AnyReference::from(list).begin()), conversionError("iterator type not handled"));
    EXPECT_EQ(refusal(std::optional<int>(1)), conversionError("optional type not handled"));
    EXPECT_EQ(refusal(Stranger()), conversionError("unknown type not handled"));
}

TEST(VXConversion, WhatIsRefusedInsideAContainerRefusesTheWhole)
{
    EXPECT_EQ(refusal(std::vector<std::optional<int>>{1}), conversionError("optional type not handled"));
    EXPECT_EQ(refusal(std::map<std::string, Stranger>{{"a", {}}}), conversionError("unknown type not handled"));
}

TEST(VXConversion, FunctionsSignalsAndPropertiesBecomeInvalidWithAWarning)
{
    const CapturedLog log;
    EXPECT_EQ(converted(std::function<int(int)>()).type(), VXValue::Type::Invalid);
    EXPECT_EQ(converted(zu::Signal<int>()).type(), VXValue::Type::Invalid);
    EXPECT_EQ(converted(zu::Property<int>()).type(), VXValue::Type::Invalid);
    ASSERT_EQ(log.lines().size(), 3u);
    for (const LogLine& line : log.lines())
        expectDispatcherWarning(line, "Signal and Property not handled");
}

TEST(VXConversion, AnElementWithoutATypeStaysAsAnInvalidOneWithAWarning)
{
    const CapturedLog log;
    const VXValue value = converted(std::vector<zu::AnyValue>{zu::AnyValue(), zu::AnyValue::from(1)});
    ASSERT_EQ(value.size(), 2);
    EXPECT_EQ(value[0].type(), VXValue::Type::Invalid);
    ASSERT_EQ(log.lines().size(), 1u);
    expectDispatcherWarning(log.lines()[0], "NULL type");
}

TEST(VXConversion, AReferenceWithoutATypeBecomesInvalidWithAWarning)
{
    const CapturedLog log;
    VXValue value = 42;
    zu::AnyReference::from(value).set(zu::AnyReference());
    EXPECT_EQ(value.type(), VXValue::Type::Invalid);
    ASSERT_EQ(log.lines().size(), 1u);
    expectDispatcherWarning(log.lines()[0], "NULL type");
}

TEST(VXConversion, AKindThatIsInNoTableBecomesInvalidSilently)
{
    const CapturedLog log;
    Stranger stranger;
    const LaterType<12> unused;
    const LaterType<19> next;
    const LaterType<99> distant;
    for (const zu::TypeInterface* type : std::initializer_list<const zu::TypeInterface*>{&unused, &next, &distant}) {
        VXValue value = 42;
        zu::AnyReference::from(value).set(zu::AnyReference(type, &stranger));
        EXPECT_EQ(value.type(), VXValue::Type::Invalid) << int(type->kind());
    }
    EXPECT_TRUE(log.lines().empty());
}

} // namespace VX
