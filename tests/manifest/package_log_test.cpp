#include <zupackage/package_info.hpp>

#include <zu/log.hpp>

#include <gtest/gtest.h>

namespace zu {

TEST(PackageLog, AHeldBackCategoryWritesNothing)
{
    int records = 0;
    const auto id = log::addHandler([&records](const log::Record&) { ++records; });
    log::Category& category = log::addCategory("zupackage");
    category.setThreshold(log::Level::Fatal);
    PackageInfo package;
    EXPECT_FALSE(package.loadFromManifestContent("<"));
    category.setThreshold(log::Level::Info);
    log::removeHandler(id);
    EXPECT_EQ(records, 0);
}

} // namespace zu
