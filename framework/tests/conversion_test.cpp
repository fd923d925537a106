#include "support/conversions.hpp"
#include "support/samples.hpp"

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/type/raw.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <list>
#include <set>

namespace zu {

namespace conversiontest {

/// Bytes of another type than Buffer.
struct Blob
{
    std::string bytes;
};

class BlobType final : public Native<Blob, RawTypeInterface>
{
public:
    std::string_view get(const void* value) const override { return object(value).bytes; }
    void set(void* value, std::string_view bytes) const override { object(value).bytes = bytes; }
};

/// A dynamic that takes whole numbers only.
struct Cell
{
    long number = 0;
};

class CellType final : public Native<Cell, DynamicTypeInterface>
{
public:
    AnyReference get(void* value) const override { return AnyReference::from(object(value).number); }
    void set(void* value, const AnyReference& source) const override
    {
        if (source.kind() != TypeKind::Int)
            throw std::domain_error("a cell takes numbers only");
        object(value).number = source.toInt();
    }
};

struct NoDefault
{
    explicit NoDefault(int) {}
};

const bool g_registered =
    registerType(TypeInfo::of<Blob>(), new BlobType) && registerType(TypeInfo::of<Cell>(), new CellType);

} // namespace conversiontest

using conversiontest::Blob;
using conversiontest::Cell;
using conversiontest::failureOf;
using conversiontest::Name;
using conversiontest::NoDefault;
using sample::Point;
using sample::WidePoint;

namespace {

std::vector<int> g_numbers{1, 2};
int g_pointee = 0;

Buffer bytesOf(std::string_view text)
{
    Buffer bytes;
    for (const char c : text)
        bytes.push_back(static_cast<std::byte>(c));
    return bytes;
}

/// An AnyValue that holds an AnyValue.
AnyValue dynamic(const AnyValue& value) { return AnyValue(AnyReference::from(value)); }

/// A value of each kind, in the order of the kinds.
std::vector<AnyValue> valuesOfEveryKind()
{
    std::vector<AnyValue> values;
    values.push_back(AnyValue::from(sample::Opaque("x")));
    values.emplace_back(typeOf<void>());
    values.push_back(AnyValue::from(1));
    values.push_back(AnyValue::from(2.5f));
    values.push_back(AnyValue::from("text"));
    values.push_back(AnyValue::from(std::vector<int>{1, 2}));
    values.push_back(AnyValue::from(std::map<std::string, int>{{"x", 1}, {"y", 2}}));
    values.emplace_back(AnyReference::from(*sample::makeService()));
    values.push_back(AnyValue::from(&g_pointee));
    values.push_back(AnyValue::from(Point{1, 2}));
    values.push_back(dynamic(AnyValue::from(3)));
    values.push_back(AnyValue::from(bytesOf("raw")));
    values.push_back(AnyValue::from(AnyReference::from(g_numbers).begin()));
    values.push_back(AnyValue::from(std::function<void()>()));
    values.push_back(AnyValue::from(Signal<int>()));
    values.push_back(AnyValue::from(Property<int>()));
    values.push_back(AnyValue::from(VarArguments<int>({1, 2})));
    values.push_back(AnyValue::from(std::optional<int>(1)));
    return values;
}

/// The same of other C++ types, where the kind has any.
std::vector<AnyValue> targetsOfEveryKind()
{
    std::vector<AnyValue> values = valuesOfEveryKind();
    values[0] = AnyValue::from(std::unique_ptr<int>());
    values[2] = AnyValue::from(-70L);
    values[3] = AnyValue::from(-70.5);
    values[4] = AnyValue::from(Name{"name"});
    values[5] = AnyValue::from(std::list<double>{-70.0});
    values[6] = AnyValue::from(std::map<Name, long>());
    values[8] = AnyValue::from(static_cast<double*>(nullptr));
    values[9] = AnyValue::from(WidePoint{-70, -71});
    values[11] = AnyValue::from(Blob{"blob"});
    values[13] = AnyValue::from(std::function<int()>());
    values[14] = AnyValue::from(Signal<>());
    values[15] = AnyValue::from(Property<long>());
    values[16] = AnyValue::from(VarArguments<long>({-70}));
    values[17] = AnyValue::from(std::optional<long>(-70));
    return values;
}

} // namespace

TEST(Conversion, EveryKindToEveryKindFollowsTheTable)
{
    using K = TypeKind;
    const std::set<std::pair<K, K>> allowed = {
        {K::Int, K::Int},       {K::Int, K::Float},      {K::Float, K::Int},        {K::Float, K::Float},
        {K::String, K::String}, {K::List, K::List},      {K::Map, K::Map},          {K::Map, K::Tuple},
        {K::Tuple, K::Map},     {K::Tuple, K::Tuple},    {K::Raw, K::Raw},          {K::Dynamic, K::Int},
        {K::Dynamic, K::Float}, {K::Int, K::Optional},   {K::Float, K::Optional},   {K::Dynamic, K::Optional},
        {K::Optional, K::Int},  {K::Optional, K::Float}, {K::Optional, K::Optional}};
    for (const AnyValue& source : valuesOfEveryKind()) {
        for (AnyValue& target : targetsOfEveryKind()) {
            SCOPED_TRACE(source.type()->name() + " to " + target.type()->name());
            const bool identical = source.type()->info() == target.type()->info();
            const bool expected =
                identical || target.kind() == K::Dynamic || allowed.count({source.kind(), target.kind()}) != 0;
            const std::string before = fingerprint(target);
            EXPECT_EQ(tryConvert(source, target.reference()), expected);
            if (!expected) {
                EXPECT_EQ(fingerprint(target), before);
                EXPECT_THROW(convert(source, target.reference()), ConversionError);
            } else if (!identical) {
                EXPECT_NE(fingerprint(target), before);
            }
        }
    }
}

TEST(Conversion, AnyTypeConvertsToItself)
{
    const std::vector<AnyValue> sources = valuesOfEveryKind();
    std::vector<AnyValue> targets = valuesOfEveryKind();
    for (std::size_t i = 0; i != sources.size(); ++i)
        EXPECT_TRUE(tryConvert(sources[i], targets[i].reference())) << sources[i].type()->name();
}

TEST(Conversion, OfTheSameTypeByAnotherInterfaceIsACopy)
{
    // Bytes seen as a raw buffer are still the vector that they are.
    class Adapter final : public Native<std::vector<char>, RawTypeInterface>
    {
    public:
        std::string_view get(const void* value) const override { return {object(value).data(), object(value).size()}; }
        void set(void* value, std::string_view bytes) const override
        {
            object(value).assign(bytes.begin(), bytes.end());
        }
    };
    static const auto& adapter = *new Adapter;
    const std::vector<char> bytes{'a', 'b'};
    const AnyReference raw(&adapter, static_cast<const void*>(&bytes));
    EXPECT_EQ(raw.kind(), TypeKind::Raw);
    EXPECT_EQ(raw.to<std::vector<char>>(), bytes);
    EXPECT_EQ(raw.getIf<std::vector<char>>(), &bytes);
    EXPECT_EQ(raw.to<Buffer>(), bytesOf("ab"));
    EXPECT_EQ(AnyValue(raw).kind(), TypeKind::Raw);
}

TEST(Conversion, DynamicsGiveTheirContentAndTakeWhatTheyCan)
{
    EXPECT_EQ(dynamic(dynamic(AnyValue::from(7))).to<long>(), 7);
    EXPECT_EQ(AnyValue::from(Cell{5}).to<double>(), 5.0);
    EXPECT_EQ(AnyValue::from(5).to<Cell>().number, 5);
    const auto held = AnyValue::from(Cell{5}).to<AnyValue>();
    EXPECT_NE(held.getIf<Cell>(), nullptr);
    EXPECT_EQ(failureOf<int>(AnyValue()), "Cannot convert zu::AnyValue to int: there is no value");
}

TEST(Conversion, NothingIsForADynamicToJudge)
{
    AnyValue value = AnyValue::from(1);
    AnyReference::from(value).set(AnyReference());
    EXPECT_TRUE(value.isEmpty());
    EXPECT_TRUE(AnyReference().to<AnyValue>().isEmpty());
}

TEST(Conversion, WhatADynamicThrowsComesOutAndItKeepsItsValue)
{
    Cell cell{5};
    const std::string text = "text";
    EXPECT_THROW(convert(AnyReference::from(text), AnyReference::from(cell)), std::domain_error);
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(AnyReference::from(text), AnyReference::from(cell), &failure));
    EXPECT_EQ(cell.number, 5);
    EXPECT_TRUE(failure.cause);
    EXPECT_EQ(failure.message(), "Cannot convert std::string to zu::conversiontest::Cell: a cell takes numbers only");
    std::vector<Cell> cells{Cell{1}};
    EXPECT_FALSE(tryConvert(AnyValue::from(std::vector<std::string>{"a"}), AnyReference::from(cells), &failure));
    EXPECT_EQ(failure.path, "[0]");
    EXPECT_EQ(cells.size(), 1u);
}

TEST(Conversion, FailuresNameTypesAndPath)
{
    using Notes = std::map<std::string, AnyValue>;
    const std::vector<AnyValue> list{AnyValue::from(1), AnyValue::from(Notes{{"a", AnyValue::from(Point{1, 300})}})};
    using Target = std::vector<std::map<std::string, std::pair<int, signed char>>>;
    const std::vector<AnyValue> tail(list.begin() + 1, list.end());
    ConversionFailure failure;
    Target target{{}};
    EXPECT_FALSE(tryConvert(AnyReference::from(tail), AnyReference::from(target), &failure));
    EXPECT_EQ(target.size(), 1u);
    EXPECT_EQ(failure.sourceType, TypeInfo::of<std::vector<AnyValue>>().name());
    EXPECT_EQ(failure.targetType, TypeInfo::of<Target>().name());
    EXPECT_EQ(failure.path, "[0][\"a\"][1]");
    EXPECT_EQ(failure.reason, "300 is not in the range of signed char");
    EXPECT_EQ(failure.message(), "Cannot convert " + failure.sourceType + " to " + failure.targetType + " at " +
                                     failure.path + ": " + failure.reason);
    EXPECT_THAT((failureOf<std::map<long, std::vector<int>>>(std::map<int, std::vector<std::string>>{{7, {"a"}}})),
                testing::EndsWith(" at [7][0]: std::string does not convert to int"));
    EXPECT_THAT((failureOf<WidePoint>(Notes{{"x", AnyValue::from("a")}, {"y", AnyValue::from(1)}})),
                testing::EndsWith(" at .x: std::string does not convert to double"));
    EXPECT_THAT((failureOf<std::map<double, int>>(std::map<double, std::string>{{0.5, "a"}})),
                testing::EndsWith(" at {0}: std::string does not convert to int"));
}

TEST(Conversion, ErrorsCarryTheFailure)
{
    try {
        AnyValue::from("text").to<int>();
        FAIL();
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "Cannot convert std::string to int");
        EXPECT_EQ(dynamic_cast<const ConversionError&>(error).failure().targetType, "int");
    }
    EXPECT_FALSE(AnyValue::from("text").tryTo<int>());
    EXPECT_EQ(AnyValue::from(5).tryTo<long>(), 5);
    EXPECT_EQ(AnyValue::from(5).tryTo<int>(), 5);
}

TEST(Conversion, ReportsAFailureForWhoKnowsTheTypes)
{
    const auto errorOf = [](const TypeInterface* from, const TypeInterface* to, const std::string& reason) {
        try {
            throwConversionFailure(from, to, reason);
        } catch (const ConversionError& error) {
            return std::string(error.what());
        }
    };
    EXPECT_EQ(errorOf(typeOf<std::string>(), typeOf<int>(), ""), "Cannot convert std::string to int");
    EXPECT_EQ(errorOf(nullptr, typeOf<int>(), "it is absent"), "Cannot convert nothing to int: it is absent");
}

TEST(Conversion, WhatHasNoDefaultOrCannotBeAssignedIsNoTarget)
{
    std::vector<NoDefault> list;
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(AnyValue::from(std::vector<int>{1}), AnyReference::from(list), &failure));
    EXPECT_EQ(failure.reason, "zu::conversiontest::NoDefault has no default value");
    sample::NotCopyable fixed;
    const sample::NotCopyable other;
    EXPECT_FALSE(tryConvert(AnyReference::from(other), AnyReference::from(fixed), &failure));
    EXPECT_EQ(failure.reason, "sample::NotCopyable cannot be assigned");
}

TEST(Conversion, TheSourceMayBeAPartOfTheTarget)
{
    AnyValue value = AnyValue::from(std::vector<AnyValue>{AnyValue::from("inner")});
    const AnyReference inner = value._element(0).content();
    convert(inner, AnyReference::from(value));
    EXPECT_EQ(value.toString(), "inner");
    std::vector<std::vector<AnyValue>> nested{{AnyValue::from(std::vector<int>{1})}};
    convert(AnyReference::from(nested[0]), AnyReference::from(nested));
    EXPECT_EQ(nested[0][0].toInt(), 1);
}

} // namespace zu
