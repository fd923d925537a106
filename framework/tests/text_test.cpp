#include "support/samples.hpp"

#include <zu/conversion.hpp>

#include <gtest/gtest.h>

#include <string_view>

namespace zu {

namespace {

const std::string g_text = "text";

} // namespace

TEST(StringView, IsAStringToReadFrom)
{
    const std::string_view view = g_text;
    const AnyReference reference = AnyReference::from(view);
    EXPECT_EQ(reference.kind(), TypeKind::String);
    EXPECT_EQ(reference.text(), "text");
    EXPECT_EQ(reference.to<std::string>(), "text");
    EXPECT_EQ(*reference.getIf<std::string_view>(), "text");
    const std::vector<std::string_view> list{view};
    EXPECT_EQ(AnyReference::from(list).to<std::vector<std::string>>(), std::vector<std::string>{"text"});
}

TEST(StringView, IsNotSetToAnotherText)
{
    std::string_view view = g_text;
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(AnyValue::from("other"), AnyReference::from(view), &failure));
    EXPECT_EQ(failure.message(),
              "Cannot convert std::string to std::string_view: std::string_view has no room for a text");
    EXPECT_EQ(view, "text");
    EXPECT_FALSE(AnyValue::from("other").tryTo<std::string_view>());
    EXPECT_FALSE(AnyValue::from(std::vector<std::string>{"a"}).tryTo<std::vector<std::string_view>>());
    EXPECT_FALSE(AnyValue::from("a").tryTo<std::optional<std::string_view>>());
}

TEST(StringView, IsSetToAnotherView)
{
    std::string_view view;
    AnyReference::from(view).set(std::string_view(g_text));
    EXPECT_EQ(view.data(), g_text.data());
}

} // namespace zu
