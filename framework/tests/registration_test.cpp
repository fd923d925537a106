// What registering promises when things come in an unlucky order.
#include "support/log_capture.hpp"

#include <zu/any_value.hpp>
#include <zu/registry.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

namespace registrationtest {

// One class a test, because what is registered stays.
template <int N>
struct Late
{
    int a = 0;
};

/// A dynamic whose name is composed of that of its content.
struct Box
{
    Late<3> content;
};

class BoxType final : public Native<Box, DynamicTypeInterface>
{
public:
    std::string name() const override { return "box of " + typeOf<Late<3>>()->name(); }
    AnyReference get(void* value) const override { return AnyReference::from(object(value).content); }
    void set(void*, const AnyReference&) const override {}
};

} // namespace registrationtest

using registrationtest::Box;
using registrationtest::BoxType;
using registrationtest::Late;

namespace {

template <int N>
bool registerLate()
{
    return registerStruct<Late<N>>("::Late" + std::to_string(N), {{"a", &Late<N>::a}});
}

std::vector<std::string> messagesOf(const Capture& capture)
{
    std::vector<std::string> messages;
    for (const auto& record : capture.records)
        messages.push_back(std::get<2>(record));
    return messages;
}

} // namespace

TEST(Registration, AfterTheFirstUseIsRefusedAndSaysWhy)
{
    const Capture capture;
    const AnyValue used = AnyValue::from(Late<1>());
    EXPECT_EQ(used.kind(), TypeKind::Unknown);
    EXPECT_FALSE(registerLate<1>());
    EXPECT_FALSE(registerType(TypeInfo::of<Late<1>>(), typeOf<Late<1>>()));
    EXPECT_EQ(findType("::Late1"), nullptr);
    EXPECT_EQ(getType(TypeInfo::of<Late<1>>()), nullptr);
    const std::string message = "zu::registrationtest::Late<1> was used before it was registered, so that it is known "
                                "as something else already";
    EXPECT_THAT(messagesOf(capture), testing::ElementsAre(message, message));
}

TEST(Registration, BeforeTheFirstUseOfAnyKindIsInTime)
{
    const AnyValue other = AnyValue::from(1);
    EXPECT_FALSE(other.holds<Late<2>>()); // asking what a value holds is no use of the type
    EXPECT_TRUE(registerLate<2>());
    EXPECT_EQ(AnyValue::from(std::vector<Late<2>>(1))._element(0).kind(), TypeKind::Tuple);
    const Capture capture;
    EXPECT_FALSE(registerLate<2>());
    EXPECT_TRUE(capture.records.empty());
}

TEST(Registration, OfATypeWhoseNameAsksForAnotherIsDone)
{
    EXPECT_TRUE(registerLate<3>());
    static const BoxType type;
    EXPECT_TRUE(registerType(TypeInfo::of<Box>(), &type));
    EXPECT_EQ(findType("box of ::Late3"), &type);
    EXPECT_EQ(getType(TypeInfo::of<Box>()), &type);
    EXPECT_FALSE(registerStruct(&type));
}

} // namespace zu
