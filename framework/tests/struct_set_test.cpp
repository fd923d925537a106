#include "support/samples.hpp"
#include "support/struct_of.hpp"

#include <zu/conversion.hpp>
#include <zu/struct_bouncer.hpp>

#include <gtest/gtest.h>

#include <memory>

namespace zu {

namespace structsettest {

/// A struct with a field that is no member, and without a default value.
struct Door
{
    explicit Door(int key) : secret(key) {}

    int width = 0;
    std::string colour;
    int secret; ///< not known to the type system
};

const bool g_doorRegistered = registerStruct<Door>("::Door", {{"width", &Door::width}, {"colour", &Door::colour}});

/// Has one with such a field among its members.
struct House
{
    std::string street;
    Door door{7};
};

const bool g_houseRegistered = registerStruct<House>("::House", {{"street", &House::street}, {"door", &House::door}});

struct Locked
{
    std::unique_ptr<int> secret;
    int width = 0;
};

const bool g_lockedRegistered = registerStruct<Locked>("::Locked", {{"width", &Locked::width}});

struct SafeRecord
{
    int width = 0;
    int secret = 7;
};

const bool g_safeRecordRegistered = registerStruct<SafeRecord>("::SafeRecord", {{"width", &SafeRecord::width}});

/// A public class over a private record, left without one by a move.
struct Safe
{
    Safe() : record(std::make_unique<SafeRecord>()) {}
    Safe(const Safe& other) : record(std::make_unique<SafeRecord>(*other.record)) {}
    Safe(Safe&& other) = default;
    Safe& operator=(const Safe& other)
    {
        *record = *other.record;
        return *this;
    }

    std::unique_ptr<SafeRecord> record;
};

const bool g_safeRegistered = registerBouncer<Safe>("::Safe", [](Safe* safe) { return safe->record.get(); });

} // namespace structsettest

using structsettest::Door;
using structsettest::House;
using structsettest::Safe;
using Named = std::map<std::string, AnyValue>;

namespace {

Named widthAndColour(int width, const char* colour)
{
    return {{"width", AnyValue::from(width)}, {"colour", AnyValue::from(colour)}};
}

} // namespace

TEST(StructSet, WhatIsNoMemberStaysAsItWas)
{
    Door door(7);
    AnyReference::from(door).set(widthAndColour(90, "red"));
    EXPECT_EQ(door.width, 90);
    EXPECT_EQ(door.secret, 7);
    structOf(typeOf<Door>()).fromMap(&door, widthAndColour(80, "blue"));
    EXPECT_EQ(door.colour, "blue");
    EXPECT_EQ(door.secret, 7);
    long width = 70;
    std::string colour = "green";
    structOf(typeOf<Door>()).setValues(&door, {AnyReference::from(width), AnyReference::from(colour)});
    EXPECT_EQ(door.width, 70);
    EXPECT_EQ(door.secret, 7);
}

TEST(StructSet, WhatIsNoMemberOfAMemberStaysAsItWas)
{
    House house;
    house.door.secret = 8;
    AnyReference::from(house).set(
        Named{{"street", AnyValue::from("Elm")}, {"door", AnyValue::from(widthAndColour(90, "red"))}});
    EXPECT_EQ(house.door.width, 90);
    EXPECT_EQ(house.door.secret, 8);
    std::optional<Door> optional(Door(9));
    AnyReference::from(optional).set(widthAndColour(80, "blue"));
    EXPECT_EQ(optional->width, 80);
    EXPECT_EQ(optional->secret, 9);
}

TEST(StructSet, AllMembersAreSetOrNone)
{
    House house;
    const Named values{{"street", AnyValue::from("Elm")},
                       {"door", AnyValue::from(Named{{"width", AnyValue::from(90)}, {"colour", AnyValue::from(1)}})}};
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(AnyReference::from(values), AnyReference::from(house), &failure));
    EXPECT_EQ(failure.path, ".door.colour");
    EXPECT_EQ(house.street, "");
    EXPECT_EQ(house.door.width, 0);
}

TEST(StructSet, WhatCannotBeCopiedIsLeftAlone)
{
    structsettest::Locked locked{std::make_unique<int>(7), 1};
    const Named values{{"width", AnyValue::from(2)}};
    EXPECT_THROW(AnyReference::from(locked).set(values), std::logic_error);
    EXPECT_EQ(*locked.secret, 7);
    EXPECT_EQ(locked.width, 1);
}

TEST(StructSet, ThroughABouncerTheRecordStaysTheSame)
{
    Safe safe;
    safe.record->secret = 8;
    const void* const record = safe.record.get();
    AnyReference::from(safe).set(Named{{"width", AnyValue::from(90)}});
    EXPECT_EQ(safe.record->width, 90);
    EXPECT_EQ(safe.record->secret, 8);
    AnyReference::from(safe).set(Safe());
    EXPECT_EQ(safe.record->width, 0);
    EXPECT_EQ(safe.record.get(), record);
}

TEST(StructSet, ElementsOfAListStartFromTheirDefaults)
{
    const std::vector<Named> values{{{"width", AnyValue::from(1)}}, {{"width", AnyValue::from(2)}}};
    const auto safes = AnyReference::from(values).to<std::vector<Safe>>();
    ASSERT_EQ(safes.size(), 2u);
    EXPECT_EQ(safes[1].record->width, 2);
    EXPECT_EQ(safes[1].record->secret, 7);
    const std::map<int, Named> keyed{{1, values[0]}, {2, values[1]}};
    EXPECT_EQ((AnyReference::from(keyed).to<std::map<long, Safe>>().at(2).record->width), 2);
}

TEST(StructSet, AStructWithoutMembersIsAnEmptyMap)
{
    static const auto type = makeStruct<sample::Service>("::Nothing", {});
    const sample::Service service{};
    EXPECT_TRUE(type->toMap(&service).empty());
    sample::Service target{3};
    type->fromMap(&target, {});
    EXPECT_EQ(target.calls, 3);
    EXPECT_THROW(type->fromMap(&target, {{"x", AnyValue()}}), ConversionError);
}

} // namespace zu
