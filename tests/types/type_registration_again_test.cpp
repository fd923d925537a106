#include "support/captured_log.hpp"
#include "types/type_registration.hpp"

#include <zupackage/package_info.hpp>

#include <zu/registry.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

TEST(TypeRegistration, AgainChangesNothingAndSaysNothing)
{
    const test::CapturedLog log;
    const TypeInterface* type = getType(TypeInfo::of<PackageInfo>());
    const TypeInterface* record = findType("::zu::PackageInfoPrivate");
    ASSERT_NE(type, nullptr);
    EXPECT_FALSE(zupackage::registerTypes());
    EXPECT_EQ(getType(TypeInfo::of<PackageInfo>()), type);
    EXPECT_EQ(findType("::zu::PackageInfoPrivate"), record);
    EXPECT_THAT(log.lines(), testing::IsEmpty());
}

} // namespace zu
