#include "support/log_capture.hpp"
#include "support/samples.hpp"

#include <zu/native/native_types.hpp>

#include <boost/function.hpp>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <limits>
#include <list>
#include <memory>
#include <tuple>

namespace zu {

namespace {

template <class Interface>
const Interface& as(const TypeInterface* type)
{
    return dynamic_cast<const Interface&>(*type);
}

template <class T>
TypeKind kindOf(const T& value)
{
    return AnyValue::from(value).kind();
}

template <class T>
void expectInt(unsigned byteSize)
{
    const auto& type = as<IntTypeInterface>(typeOf<T>());
    EXPECT_EQ(type.byteSize(), byteSize) << type.name();
    EXPECT_EQ(type.isSigned(), std::is_signed_v<T>) << type.name();
    for (const T number : {std::numeric_limits<T>::min(), T(1), std::numeric_limits<T>::max()}) {
        T stored{};
        type.set(&stored, type.get(&number));
        EXPECT_EQ(stored, number) << type.name();
    }
}

} // namespace

TEST(NativeTypes, KindNumbersAndNamesAreFixed)
{
    const std::pair<int, std::string_view> kinds[] = {
        {0, "Unknown"},   {1, "Void"},      {2, "Int"},       {3, "Float"},   {4, "String"},    {5, "List"},
        {6, "Map"},       {7, "Object"},    {8, "Pointer"},   {9, "Tuple"},   {10, "Dynamic"},  {11, "Raw"},
        {12, ""},         {13, "Iterator"}, {14, "Function"}, {15, "Signal"}, {16, "Property"}, {17, "VarArgs"},
        {18, "Optional"}, {19, ""},         {-1, ""}};
    for (const auto& [number, name] : kinds)
        EXPECT_EQ(kindName(static_cast<TypeKind>(number)), name) << number;
}

TEST(NativeTypes, AValueOfEveryKindCanBeMade)
{
    std::vector<int> list{1};
    const std::pair<TypeKind, TypeKind> kinds[] = {
        {kindOf(sample::Opaque("x")), TypeKind::Unknown},
        {AnyValue(typeOf<void>()).kind(), TypeKind::Void},
        {kindOf(1), TypeKind::Int},
        {kindOf(1.5f), TypeKind::Float},
        {kindOf(std::string()), TypeKind::String},
        {kindOf(list), TypeKind::List},
        {kindOf(std::map<int, int>()), TypeKind::Map},
        {AnyReference::from(*sample::makeService()).kind(), TypeKind::Object},
        {kindOf(&list), TypeKind::Pointer},
        {kindOf(std::pair<int, int>()), TypeKind::Tuple},
        {typeOf<AnyValue>()->kind(), TypeKind::Dynamic},
        {kindOf(Buffer()), TypeKind::Raw},
        {kindOf(AnyReference::from(list).begin()), TypeKind::Iterator},
        {kindOf(std::function<void()>()), TypeKind::Function},
        {kindOf(Signal<int>()), TypeKind::Signal},
        {kindOf(Property<int>()), TypeKind::Property},
        {kindOf(VarArguments<int>()), TypeKind::VarArgs},
        {kindOf(std::optional<int>()), TypeKind::Optional}};
    for (const auto& [actual, expected] : kinds)
        EXPECT_EQ(actual, expected) << kindName(expected);
}

TEST(NativeTypes, IntegersOfEveryWidthKeepTheirEdges)
{
    expectInt<bool>(0);
    expectInt<char>(1);
    expectInt<signed char>(1);
    expectInt<unsigned char>(1);
    expectInt<short>(2);
    expectInt<unsigned short>(2);
    expectInt<int>(4);
    expectInt<unsigned>(4);
    expectInt<long>(8);
    expectInt<unsigned long>(8);
    expectInt<long long>(8);
    expectInt<unsigned long long>(8);
    expectInt<wchar_t>(4);
    expectInt<char16_t>(2);
}

TEST(NativeTypes, FloatsTellTheirSize)
{
    EXPECT_EQ(as<FloatTypeInterface>(typeOf<float>()).byteSize(), 4u);
    EXPECT_EQ(as<FloatTypeInterface>(typeOf<double>()).byteSize(), 8u);
}

TEST(NativeTypes, TextAndBytesCanBeSetFromPartsOfThemselves)
{
    std::string text = "abcdef";
    Buffer bytes{std::byte{1}, std::byte{2}, std::byte{3}};
    as<StringTypeInterface>(typeOf<std::string>()).set(&text, std::string_view(text).substr(2, 2));
    const auto& raw = as<RawTypeInterface>(typeOf<Buffer>());
    raw.set(&bytes, raw.get(&bytes).substr(1));
    EXPECT_EQ(text, "cd");
    EXPECT_THAT(bytes, testing::ElementsAre(std::byte{2}, std::byte{3}));
    raw.set(&bytes, {});
    EXPECT_TRUE(bytes.empty());
}

TEST(NativeTypes, ListsTellTheirElementTypeAndGrow)
{
    const auto& type = as<ListTypeInterface>(typeOf<std::list<std::string>>());
    EXPECT_EQ(type.elementType(), typeOf<std::string>());
    std::list<std::string> list;
    std::string text = "a";
    type.append(&list, &text);
    type.appendMoved(&list, &text);
    EXPECT_THAT(list, testing::ElementsAre("a", "a"));
    EXPECT_EQ(type.size(&list), 2u);
    EXPECT_EQ(as<ListTypeInterface>(typeOf<std::vector<bool>>()).elementType(), typeOf<bool>());
}

TEST(NativeTypes, MapsFindAndKeepTheFirstEntryOfAKey)
{
    const auto& type = as<MapTypeInterface>(typeOf<std::map<std::string, int>>());
    EXPECT_EQ(type.keyType(), typeOf<std::string>());
    EXPECT_EQ(type.valueType(), typeOf<int>());
    std::map<std::string, int> map;
    std::string key = "a";
    std::string again = "a";
    int one = 1;
    int two = 2;
    EXPECT_TRUE(type.insertMoved(&map, &key, &one));
    EXPECT_FALSE(type.insertMoved(&map, &again, &two));
    EXPECT_EQ(again, "a");
    EXPECT_EQ(type.find(&map, &again).toInt(), 1);
    const std::string absent = "b";
    EXPECT_TRUE(type.find(&map, &absent).isEmpty());
}

TEST(NativeTypes, PairsAndTuplesHaveMembersWithoutNames)
{
    std::tuple<int, std::string, double> tuple{1, "b", 2.5};
    const auto& type = as<StructTypeInterface>(typeOf<decltype(tuple)>());
    EXPECT_EQ(type.className(), "");
    EXPECT_THAT(type.elementsName(), testing::IsEmpty());
    EXPECT_THAT(type.memberTypes(), testing::ElementsAre(typeOf<int>(), typeOf<std::string>(), typeOf<double>()));
    EXPECT_EQ(type.element(&tuple, 1).address(), &std::get<1>(tuple));
    EXPECT_EQ(type.values(&tuple).size(), 3u);
    EXPECT_THAT(as<StructTypeInterface>(typeOf<std::pair<const int, char>>()).memberTypes(),
                testing::ElementsAre(typeOf<int>(), typeOf<char>()));
    EXPECT_EQ(AnyValue::from(std::tuple<>()).size(), 0u);
}

TEST(NativeTypes, OptionalsHaveAValueOrNot)
{
    std::optional<int> optional = 1;
    const auto& type = as<OptionalTypeInterface>(typeOf<std::optional<int>>());
    EXPECT_EQ(type.valueType(), typeOf<int>());
    AnyReference::from(optional).content().set(2);
    EXPECT_EQ(optional, 2);
    type.reset(&optional);
    EXPECT_FALSE(optional);
    EXPECT_TRUE(AnyReference::from(optional).content().isEmpty());
}

TEST(NativeTypes, DescriptorsTellTheirSignatures)
{
    const auto& standard = as<FunctionTypeInterface>(typeOf<std::function<int(const std::string&, float)>>());
    EXPECT_EQ(standard.resultType(), typeOf<int>());
    EXPECT_THAT(standard.parameterTypes(), testing::ElementsAre(typeOf<std::string>(), typeOf<float>()));
    const auto& boosted = as<FunctionTypeInterface>(typeOf<boost::function<void(int)>>());
    EXPECT_EQ(boosted.resultType(), typeOf<void>());
    EXPECT_THAT(boosted.parameterTypes(), testing::ElementsAre(typeOf<int>()));
    const AnyValue signal = AnyValue::from(Signal<int, std::string>());
    EXPECT_THAT(as<SignalTypeInterface>(signal.type()).parameterTypes(),
                testing::ElementsAre(typeOf<int>(), typeOf<std::string>()));
    const AnyValue property = AnyValue::from(Property<double>());
    EXPECT_EQ(as<PropertyTypeInterface>(property.type()).valueType(), typeOf<double>());
}

TEST(NativeTypes, AnObjectHandleIsADynamicWithTheObjectAsContent)
{
    const auto service = sample::makeService();
    const Object<sample::Service> typed(service);
    const AnyValue handle = AnyValue::from(typed);
    const AnyValue generic = AnyValue::from(Object<Empty>(typed));
    for (const AnyValue* value : {&handle, &generic}) {
        EXPECT_EQ(value->kind(), TypeKind::Dynamic);
        EXPECT_EQ(value->content().kind(), TypeKind::Object);
        EXPECT_EQ(value->content().address(), service.get());
    }
    EXPECT_TRUE(generic.holds<Object<Empty>>());
    EXPECT_TRUE(AnyValue::from(Object<Empty>()).content().isEmpty());
    EXPECT_TRUE(AnyValue::from(Object<sample::Service>()).content().isEmpty());
}

TEST(NativeTypes, AGenericHandleKeepsItsObject)
{
    std::weak_ptr<sample::Service> watch;
    {
        auto service = sample::makeService();
        watch = service;
        const Object<Empty> handle(std::move(service));
        EXPECT_FALSE(watch.expired());
    }
    EXPECT_TRUE(watch.expired());
}

TEST(NativeTypes, HandlesAreSetToHandlesOfTheirClassOnly)
{
    Object<Empty> handle;
    const Object<Empty> other(sample::makeService());
    AnyReference::from(handle).set(other);
    EXPECT_EQ(handle.reference().address(), other.reference().address());
    EXPECT_THROW(AnyReference::from(handle).set(1), std::runtime_error);
    EXPECT_EQ(handle.reference().address(), other.reference().address());
}

TEST(NativeTypes, ContainersOfWhatCannotBeCopiedAreReferredToAndNotCopied)
{
    std::vector<std::unique_ptr<int>> list(1);
    const AnyReference reference = AnyReference::from(list);
    EXPECT_EQ(reference.size(), 1u);
    EXPECT_EQ(reference._element(0).kind(), TypeKind::Unknown);
    EXPECT_THROW(AnyValue{reference}, std::logic_error);
    const AnyValue moved = AnyValue::from(std::move(list));
    EXPECT_EQ(moved.size(), 1u);
    EXPECT_THROW(AnyValue{moved}, std::logic_error);
}

} // namespace zu
