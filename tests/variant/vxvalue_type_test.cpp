#include <zupackage/vxvalue.hpp>

#include <zu/any_value.hpp>
#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/raw.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <type_traits>

namespace VX {

static_assert(std::is_base_of_v<zu::DynamicTypeInterface, VXValueType>);
static_assert(std::is_base_of_v<zu::RawTypeInterface, TypeBinaryAdapter>);

namespace {

/// What the type system hands out of a value.
zu::AnyReference contentOf(VXValue& value) { return zu::AnyReference::from(value).content(); }

VXValue arrayOf(std::initializer_list<VXValue> elements)
{
    VXValue array;
    array.resizeArray(static_cast<int>(elements.size()));
    int index = 0;
    for (const VXValue& element : elements)
        array[index++] = element;
    return array;
}

} // namespace

TEST(VXValueType, IsRegisteredAtLoad)
{
    const zu::TypeInterface* type = zu::getType(zu::TypeInfo::of<VXValue>());
    ASSERT_NE(type, nullptr);
    EXPECT_NE(dynamic_cast<const VXValueType*>(type), nullptr);
    EXPECT_EQ(zu::typeOf<VXValue>(), type);
    EXPECT_EQ(type->kind(), zu::TypeKind::Dynamic);
}

TEST(VXValueType, HandsOutThePayloadByType)
{
    VXValue invalid;
    EXPECT_EQ(contentOf(invalid).kind(), zu::TypeKind::Void);
    VXValue flag(true);
    EXPECT_TRUE(contentOf(flag).holds<bool>());
    VXValue number(42);
    EXPECT_EQ(*contentOf(number).getIf<std::int32_t>(), 42);
    VXValue real(0.5F);
    EXPECT_EQ(*contentOf(real).getIf<float>(), 0.5F);
    VXValue text("text");
    EXPECT_EQ(*contentOf(text).getIf<std::string>(), "text");
    VXValue binary("\1\2", 2);
    EXPECT_EQ(contentOf(binary).kind(), zu::TypeKind::Raw);
    EXPECT_EQ(contentOf(binary).rawBuffer(), "\1\2");
    VXValue array = arrayOf({VXValue(1), VXValue("a")});
    EXPECT_EQ(contentOf(array).kind(), zu::TypeKind::List);
    EXPECT_EQ(contentOf(array).size(), 2u);
    EXPECT_TRUE(contentOf(array)._element(1).holds<VXValue>());
    VXValue object;
    object.xAssertCompatibleType(VXValue::Type::Object);
    EXPECT_TRUE(contentOf(object).isEmpty());
}

TEST(VXValueType, WritingToThePayloadChangesTheValue)
{
    VXValue number(1);
    contentOf(number).set(7);
    EXPECT_EQ(number.dump(1), "7");
    VXValue binary("\1", 1);
    contentOf(binary).set(zu::Buffer{std::byte{9}, std::byte{8}});
    EXPECT_EQ(binary.dump(1), "\\9\\8");
}

TEST(VXValueType, ConvertsToTheTypesOfTheFramework)
{
    const VXValue value = arrayOf({VXValue(1), VXValue(2)});
    EXPECT_THAT(zu::AnyReference::from(value).to<std::vector<int>>(), testing::ElementsAre(1, 2));
    const VXValue text("text");
    EXPECT_EQ(zu::AnyReference::from(text).to<std::string>(), "text");
    EXPECT_THROW(zu::AnyReference::from(text).to<int>(), zu::ConversionError);
}

TEST(VXValueType, AFailedSetLeavesTheOldValue)
{
    VXValue value = arrayOf({VXValue(1)});
    const std::vector<std::optional<int>> refused{1};
    EXPECT_THROW(zu::AnyReference::from(value).set(refused), VXError);
    EXPECT_EQ(value.dump(1), "[1]");
}

TEST(VXValueType, SettingAValueToAPartOfItselfWorks)
{
    VXValue value = arrayOf({VXValue(1), arrayOf({VXValue("a")})});
    const zu::AnyReference reference = zu::AnyReference::from(value);
    reference.set(contentOf(value)._element(1));
    EXPECT_EQ(value.dump(1), "[\"a\"]");
}

TEST(VXValueType, CopiesHeldByTheFrameworkAreIndependent)
{
    VXValue value = arrayOf({VXValue(1)});
    zu::AnyValue held = zu::AnyValue::from(value);
    zu::AnyValue copy = held;
    (*copy.getIf<VXValue>())[0] = VXValue(2);
    EXPECT_EQ(held.getIf<VXValue>()->dump(1), "[1]");
    EXPECT_EQ(copy.getIf<VXValue>()->dump(1), "[2]");
}

TEST(VXValueType, AVariantConvertsToAVariantOfTheSameContent)
{
    const VXValue value = arrayOf({VXValue(1), VXValue("\0\1", 2), VXValue(), arrayOf({VXValue(true)})});
    VXValue copy;
    zu::AnyReference::from(copy).set(std::vector<VXValue>{value});
    EXPECT_EQ(copy.dump(1), "[" + value.dump(1) + "]");
}

TEST(VXValueType, AVariantNestedTooDeepIsRefusedByAConversion)
{
    VXValue value;
    for (int i = 0; i < 100'000; ++i) {
        VXValue outer;
        outer.resizeArray(1);
        outer[0] = std::move(value);
        value = std::move(outer);
    }
    VXValue target(1);
    EXPECT_THROW(zu::AnyReference::from(target).set(*contentOf(value).getIf<std::vector<VXValue>>()), VXError);
    EXPECT_EQ(target.dump(1), "1");
}

TEST(TypeBinaryAdapter, IsOneForTheProcessAndReadsAndWritesBytes)
{
    const TypeBinaryAdapter& adapter = TypeBinaryAdapter::instance();
    EXPECT_EQ(&adapter, &TypeBinaryAdapter::instance());
    TVXValueBytes bytes{1, 0, 255};
    EXPECT_EQ(adapter.get(&bytes), std::string_view("\1\0\377", 3));
    adapter.set(&bytes, adapter.get(&bytes).substr(1));
    EXPECT_THAT(bytes, testing::ElementsAre(0, 255));
    adapter.set(&bytes, {});
    EXPECT_TRUE(bytes.empty());
}

} // namespace VX
