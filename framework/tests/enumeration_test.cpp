#include "support/samples.hpp"

#include <zu/conversion.hpp>

#include <gtest/gtest.h>

namespace zu {

namespace enumerationtest {

enum class Height : signed char
{
    Low = -1,
    High = 1,
    Highest = High
};

/// Without a fixed underlying type: its values are 0 to 7, and converting another number to it is undefined.
enum Loose
{
    LooseOne = 1,
    LooseSix = 6
};

enum LooseSigned
{
    LooseMinus = -3,
    LooseTwo = 2
};

enum LooseUnknown
{
    LooseUnknownOne = 1
};

} // namespace enumerationtest

using namespace enumerationtest;

template <>
struct EnumSchema<Height>
{
    static std::vector<Enumerator> describe()
    {
        return {{"Low", Height::Low}, {"High", Height::High}, {"Highest", Height::Highest}};
    }
};

template <>
struct EnumSchema<Loose>
{
    static std::vector<Enumerator> describe() { return {{"LooseOne", LooseOne}, {"LooseSix", LooseSix}}; }
};

template <>
struct EnumSchema<LooseSigned>
{
    static std::vector<Enumerator> describe() { return {{"LooseMinus", LooseMinus}, {"LooseTwo", LooseTwo}}; }
};

namespace {

template <class T>
const IntTypeInterface& intTypeOf()
{
    return dynamic_cast<const IntTypeInterface&>(*typeOf<T>());
}

/// The numbers from -10 to 10 that convert to an enumeration.
template <class T>
std::vector<int> accepted()
{
    std::vector<int> numbers;
    for (int number = -10; number <= 10; ++number) {
        if (AnyValue::from(number).tryTo<T>())
            numbers.push_back(number);
    }
    return numbers;
}

} // namespace

TEST(Enumeration, AreIntegersOfTheirUnderlyingType)
{
    const auto& type = intTypeOf<sample::Colour>();
    EXPECT_EQ(type.byteSize(), 1u);
    EXPECT_FALSE(type.isSigned());
    EXPECT_EQ(AnyValue::from(sample::Colour::Green).toInt(), 2);
    EXPECT_EQ(AnyValue::from(1).to<sample::Colour>(), sample::Colour::Red);
    EXPECT_EQ(AnyValue::from(77).to<sample::Colour>(), sample::Colour{77}); // any number of the type is a value
}

TEST(Enumeration, WithoutAFixedTypeTakeTheNumbersThatTheirBitsMake)
{
    EXPECT_EQ(accepted<Loose>(), (std::vector<int>{0, 1, 2, 3, 4, 5, 6, 7}));
    EXPECT_EQ(accepted<LooseSigned>(), (std::vector<int>{-4, -3, -2, -1, 0, 1, 2, 3}));
    EXPECT_FALSE(AnyValue::from(8.0).tryTo<Loose>());
    EXPECT_EQ(AnyValue::from(6.5).to<Loose>(), LooseSix);
}

TEST(Enumeration, WithoutAFixedTypeOrADescriptionTakeNoNumber)
{
    EXPECT_EQ(accepted<LooseUnknown>(), std::vector<int>());
    EXPECT_EQ(AnyValue::from(LooseUnknownOne).toInt(), 1);
    EXPECT_EQ(AnyValue::from(LooseUnknownOne).to<LooseUnknown>(), LooseUnknownOne);
    ConversionFailure failure;
    LooseUnknown target = LooseUnknownOne;
    EXPECT_FALSE(tryConvert(AnyValue::from(1L), AnyReference::from(target), &failure));
    EXPECT_EQ(failure.reason, "1 is not in the range of zu::enumerationtest::LooseUnknown");
}

TEST(Enumeration, TellTheNamesOfTheirValues)
{
    const auto& type = intTypeOf<Height>();
    EXPECT_EQ(type.enumerators().size(), 3u);
    EXPECT_EQ(type.nameOf(-1), "Low");
    EXPECT_EQ(type.nameOf(1), "High");
    EXPECT_EQ(type.nameOf(5), "");
    EXPECT_EQ(type.numberOf("Highest"), 1);
    EXPECT_EQ(type.numberOf("highest"), std::nullopt);
    EXPECT_TRUE(intTypeOf<sample::Colour>().enumerators().empty());
    EXPECT_TRUE(intTypeOf<int>().enumerators().empty());
    EXPECT_EQ(AnyValue::from(Height::Highest).enumName(), "High");
    EXPECT_EQ(AnyValue::from(1).enumName(), "");
    EXPECT_THROW(AnyValue::from("High").enumName(), std::runtime_error);
}

} // namespace zu
