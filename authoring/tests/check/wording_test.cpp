#include "check/wording.hpp"

#include <gtest/gtest.h>

namespace zupackage::check {

TEST(Wording, QuotesWithoutWhatSteersATerminal)
{
    EXPECT_EQ(inQuotes("a\x1B[2J\n\x7F"), "\"a�[2J��\"");
    EXPECT_EQ(inQuotes("a\xC2\x9B\xE2\x80\xAE\xE2\x81\xA6z é"), "\"a���z é\"");
}

TEST(Wording, QuotesTheBeginningOfALongText)
{
    EXPECT_EQ(inQuotes(std::string(60, 'x')), "\"" + std::string(60, 'x') + "\"");
    EXPECT_EQ(inQuotes(std::string(1000, 'x')), "\"" + std::string(60, 'x') + "…\"");
}

TEST(Wording, NamesAlternatives)
{
    EXPECT_EQ(alternatives({"a"}), "a");
    EXPECT_EQ(alternatives({"a", "b"}), "a or b");
    EXPECT_EQ(alternatives({"a", "b", "c"}), "a, b or c");
}

TEST(Wording, FindsWhatWasMeant)
{
    const std::vector<std::string_view> names = {"names", "descriptions", "nature", "autorun"};
    EXPECT_EQ(nearest("name", names), "names");
    EXPECT_EQ(nearest("nmaes", names), "names");
    EXPECT_EQ(nearest("Nature", names), "nature");
    EXPECT_EQ(nearest("AUTORUN", names), "autorun");
    EXPECT_EQ(nearest("description", names), "descriptions");
    EXPECT_EQ(nearest("permissions", names), "");
    EXPECT_EQ(nearest("", names), "");
    EXPECT_EQ(nearest(std::string(1'000'000, 'n'), names), "");
}

} // namespace zupackage::check
