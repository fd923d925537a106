#include "support/files.hpp"

#include <zupackage/authoring/version.hpp>
#include <zupackage/version.hpp>

#include <zu/version.hpp>

#include <gtest/gtest.h>

namespace zu {

TEST(Structure, LibrariesAndChangelogAreOfOneVersion)
{
    EXPECT_STREQ(ZU_VERSION_STRING, ZUPACKAGE_VERSION_STRING);
    EXPECT_STREQ(ZUPACKAGE_AUTHORING_VERSION_STRING, ZUPACKAGE_VERSION_STRING);
    const std::string numbers = std::to_string(ZUPACKAGE_VERSION_MAJOR) + "." +
                                std::to_string(ZUPACKAGE_VERSION_MINOR) + "." + std::to_string(ZUPACKAGE_VERSION_PATCH);
    EXPECT_EQ(numbers, ZUPACKAGE_VERSION_STRING);
    const std::string latest = "# Changelog\n\n## " + numbers;
    EXPECT_EQ(test::readFile(test::sourcePath("CHANGELOG.md")).substr(0, latest.size()), latest);
}

} // namespace zu
