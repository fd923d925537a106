#include "check/version.hpp"

#include <gtest/gtest.h>

#include <string>

namespace zupackage::check {

TEST(Version, IsNumbersAndAPreRelease)
{
    const auto version = parseVersion("1.012.0-beta.2+build.7");
    ASSERT_TRUE(version);
    EXPECT_EQ(version->numbers, (std::vector<std::string_view>{"1", "12", "0"}));
    EXPECT_EQ(version->preRelease, "beta.2");
}

TEST(Version, IsRefusedWhenItIsNone)
{
    for (const char* text :
         {"", "v1", "1.", ".1", "1..2", "1.x", "1-", "1+", "1.0-beta..1", "1.0 ", "1,0", "-1", "1.0-é"})
        EXPECT_FALSE(parseVersion(text)) << text;
}

TEST(Version, HasAnOrder)
{
    const std::vector<std::string> sorted = {"0",
                                             "0.9",
                                             "1.0-1",
                                             "1.0-2",
                                             "1.0-10",
                                             "1.0-alpha",
                                             "1.0-alpha.1",
                                             "1.0-beta",
                                             "1.0",
                                             "1.0.1",
                                             "1.2",
                                             "1.10",
                                             "2",
                                             "99999999999999999999",
                                             "100000000000000000000"};
    for (std::size_t i = 0; i < sorted.size(); ++i) {
        for (std::size_t j = 0; j < sorted.size(); ++j)
            EXPECT_EQ(isBefore(*parseVersion(sorted[i]), *parseVersion(sorted[j])), i < j)
                << sorted[i] << ' ' << sorted[j];
    }
    EXPECT_FALSE(isBefore(*parseVersion("1.0.0"), *parseVersion("1")));
    EXPECT_FALSE(isBefore(*parseVersion("1"), *parseVersion("1.0.0")));
}

} // namespace zupackage::check
