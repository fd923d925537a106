#include "site/short_text.hpp"

#include <gtest/gtest.h>

namespace zu::cli {

TEST(ShortText, IsTheTextWhenThatIsNotLong)
{
    EXPECT_EQ(shortText("", 3), "");
    EXPECT_EQ(shortText("abc", 3), "abc");
    EXPECT_EQ(shortText("日本語", 3), "日本語");
}

TEST(ShortText, IsCutBetweenCharacters)
{
    EXPECT_EQ(shortText("abcd", 3), "ab…");
    EXPECT_EQ(shortText("日本語é", 3), "日本…");
    EXPECT_EQ(shortText("ab", 1), "…");
}

} // namespace zu::cli
