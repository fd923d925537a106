#include <zupackage/package_info2.hpp>

#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

static_assert(std::is_nothrow_move_constructible_v<WebInfo> && std::is_copy_constructible_v<WebInfo>);
static_assert(std::is_same_v<decltype(std::declval<WebInfo&>() = std::declval<const WebInfo&>()), WebInfo&>);
static_assert(std::is_same_v<decltype(std::declval<WebInfo&>() = std::declval<WebInfo&&>()), WebInfo&>);

TEST(WebInfo, StartsEmpty) { EXPECT_EQ(WebInfo().path, ""); }

} // namespace zu
