#include "support/samples.hpp"

#include <zu/any_reference.hpp>
#include <zu/conversion.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <optional>
#include <type_traits>
#include <utility>

namespace zu {

namespace {

template <class Call>
std::string errorOf(Call call)
{
    try {
        call();
    } catch (const std::runtime_error& error) {
        return error.what();
    }
    return "nothing was thrown";
}

} // namespace

namespace referencetest {

template <class T, class = void>
struct CanReferTo : std::false_type
{
};
template <class T>
struct CanReferTo<T, std::void_t<decltype(AnyReference::from(std::declval<T>()))>> : std::true_type
{
};

} // namespace referencetest

static_assert(referencetest::CanReferTo<int&>::value && referencetest::CanReferTo<const int&>::value);
static_assert(!referencetest::CanReferTo<int>::value && !referencetest::CanReferTo<const int>::value,
              "a reference to a temporary would dangle");
static_assert(sizeof(AnyReference) == 16);
static_assert(std::is_trivially_copyable_v<AnyReference>);

TEST(AnyReference, EmptyHasNoTypeAndRefusesEveryQuestion)
{
    const AnyReference empty;
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_EQ(empty.type(), nullptr);
    EXPECT_EQ(empty.kind(), TypeKind::Unknown);
    EXPECT_EQ(empty.getIf<int>(), nullptr);
    EXPECT_FALSE(empty.tryTo<int>());
    EXPECT_EQ(errorOf([&] { empty.text(); }), "text() of an empty reference: a string is needed");
    EXPECT_EQ(errorOf([&] { empty.content(); }),
              "content() of an empty reference: a dynamic, a pointer or an optional is needed");
    EXPECT_EQ(errorOf([&] { empty.toInt(); }), "Cannot convert nothing to long: there is no value");
    EXPECT_EQ(errorOf([&] { empty.set(1); }), "Cannot convert int to nothing: there is no target");
    EXPECT_EQ(errorOf([&] { empty.writableAddress(); }), "an empty reference cannot be written through");
}

TEST(AnyReference, RefersToTheObjectItself)
{
    int number = 1;
    const AnyReference reference = AnyReference::from(number);
    EXPECT_EQ(reference.address(), &number);
    EXPECT_EQ(reference.getMutableIf<int>(), &number);
    reference.set(7);
    EXPECT_EQ(number, 7);
}

TEST(AnyReference, ToConstObjectsIsForReadingOnly)
{
    const int number = 1;
    const AnyReference reference = AnyReference::from(number);
    EXPECT_TRUE(reference.isReadOnly());
    EXPECT_EQ(reference.getIf<int>(), &number);
    EXPECT_EQ(reference.getMutableIf<int>(), nullptr);
    EXPECT_EQ(errorOf([&] { reference.set(2); }), "Cannot convert int to int: the target is for reading only");
    EXPECT_EQ(errorOf([&] { reference.writableAddress(); }), "a reference to int is for reading only");
    EXPECT_EQ(number, 1);
}

TEST(AnyReference, PartsOfWhatIsForReadingOnlyAreToo)
{
    const std::vector<int> list{1};
    const std::map<int, int> map{{1, 2}};
    const std::optional<int> optional = 1;
    const AnyValue dynamic = AnyValue::from(1);
    EXPECT_TRUE(AnyReference::from(list)._element(0).isReadOnly());
    EXPECT_TRUE((*AnyReference::from(list).begin()).isReadOnly());
    EXPECT_TRUE((*AnyReference::from(map).begin())._element(1).isReadOnly());
    EXPECT_TRUE(AnyReference::from(optional).content().isReadOnly());
    EXPECT_TRUE(AnyReference::from(dynamic).content().isReadOnly());
    const sample::Point point;
    EXPECT_TRUE(AnyReference::from(point)._element(0).isReadOnly());
}

TEST(AnyReference, KeysOfEntriesAreForReadingOnlyAndValuesAreNot)
{
    std::map<std::string, int> map{{"a", 1}};
    const AnyReference entry = *AnyReference::from(map).begin();
    EXPECT_TRUE(entry._element(0).isReadOnly());
    EXPECT_EQ(entry._element(0).text(), "a");
    entry._element(1).set(5);
    EXPECT_EQ(map["a"], 5);
}

TEST(AnyReference, ConstOfAPointerIsNotThatOfWhatItPointsTo)
{
    int number = 1;
    int* const pointer = &number;
    const int* const toConst = &number;
    AnyReference::from(pointer).content().set(2);
    EXPECT_EQ(number, 2);
    EXPECT_TRUE(AnyReference::from(toConst).content().isReadOnly());
}

TEST(AnyReference, NeedsATypeAndAnAddress)
{
    EXPECT_THROW(AnyReference(nullptr, static_cast<void*>(nullptr)), std::invalid_argument);
    EXPECT_THROW(AnyReference(typeOf<int>(), nullptr), std::invalid_argument);
    EXPECT_THROW(AnyReference(typeOf<int>(), static_cast<const void*>(nullptr)), std::invalid_argument);
    const AnyReference nothing(typeOf<void>(), nullptr);
    EXPECT_EQ(nothing.kind(), TypeKind::Void);
    EXPECT_FALSE(nothing.isEmpty());
}

TEST(AnyReference, GetIfDemandsExactlyTheType)
{
    const long number = 1;
    const AnyReference reference = AnyReference::from(number);
    EXPECT_EQ(reference.getIf<long>(), &number);
    EXPECT_EQ(reference.getIf<int>(), nullptr);
    EXPECT_EQ(reference.getIf<long long>(), nullptr);
}

TEST(AnyReference, TextAndBytesAreSeenInPlaceWithTheirLength)
{
    const std::string text("a\0b", 3);
    const Buffer bytes{std::byte{0}, std::byte{255}};
    EXPECT_EQ(AnyReference::from(text).text(), std::string_view("a\0b", 3));
    EXPECT_EQ(AnyReference::from(text).text().data(), text.data());
    EXPECT_EQ(AnyReference::from(bytes).rawBuffer(), std::string_view("\0\xff", 2));
    EXPECT_EQ(errorOf([&] { AnyReference::from(bytes).text(); }).substr(0, 9), "text() of");
    EXPECT_EQ(errorOf([&] { AnyReference::from(text).rawBuffer(); }),
              "rawBuffer() of std::string: a raw buffer is needed");
}

TEST(AnyReference, NumbersAndTextConvert)
{
    const unsigned char small = 200;
    const float half = 0.5f;
    const std::string text = "text";
    EXPECT_EQ(AnyReference::from(small).toInt(), 200);
    EXPECT_EQ(AnyReference::from(half).toDouble(), 0.5);
    EXPECT_EQ(AnyReference::from(text).toString(), "text");
    EXPECT_EQ(errorOf([&] { AnyReference::from(text).toInt(); }), "Cannot convert std::string to long");
}

TEST(AnyReference, ElementsAreCountedAndPicked)
{
    std::list<int> list{1, 2, 3};
    const std::pair<int, std::string> pair{1, "b"};
    const AnyReference reference = AnyReference::from(list);
    EXPECT_EQ(reference.size(), 3u);
    reference._element(2).set(9);
    EXPECT_EQ(list.back(), 9);
    EXPECT_EQ(AnyReference::from(pair).size(), 2u);
    EXPECT_EQ(AnyReference::from(pair)._element(1).text(), "b");
    EXPECT_THROW(reference._element(3), std::out_of_range);
    EXPECT_THROW(AnyReference::from(pair)._element(2), std::out_of_range);
    EXPECT_EQ(errorOf([&] { reference._element(0)._element(0); }),
              "_element() of int: a tuple, a list or variable arguments is needed");
    EXPECT_EQ(errorOf([&] { reference._element(0).size(); }),
              "size() of int: a list, a map, variable arguments or a tuple is needed");
    EXPECT_EQ(errorOf([&] { reference._element(0).begin(); }),
              "begin() of int: a list, a map or variable arguments is needed");
    EXPECT_EQ(errorOf([&] { reference._element(0).end(); }),
              "end() of int: a list, a map or variable arguments is needed");
}

TEST(AnyReference, SetTakesCStringsAsText)
{
    std::string text;
    AnyReference::from(text).set("abc");
    EXPECT_EQ(text, "abc");
    const char* const null = nullptr;
    EXPECT_THROW(AnyReference::from(text).set(null), std::invalid_argument);
    EXPECT_EQ(text, "abc");
}

TEST(AnyReference, CopyingRebindsAndSetWrites)
{
    int one = 1;
    int two = 2;
    AnyReference reference = AnyReference::from(one);
    reference = AnyReference::from(two);
    EXPECT_EQ(one, 1);
    reference.set(AnyReference::from(one));
    EXPECT_EQ(two, 1);
}

} // namespace zu
