#include "records/behavior_info_p.hpp"
#include "records/private_record.hpp"

#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace zu {

TEST(BehaviorPermissionsWriter, WhatCannotBeAnElementsNameIsLeftOut)
{
    BehaviorInfo behavior;
    // As through doors other than addPermission().
    PrivateRecord::of(behavior).permissions = {"canStandUp", "",     "can fly",   "a/><evil",
                                               "1st",        "-x",   "a:b",       "\xc3\xa9t\xc3\xa9",
                                               "x.y-z_1",    "\xff", "canSitDown"};
    PackageInfo package;
    package.addBehavior(behavior);
    EXPECT_THAT(package.saveToManifestContent(), testing::HasSubstr("<permissions>\n"
                                                                    "    <canStandUp/>\n"
                                                                    "    <\xc3\xa9t\xc3\xa9/>\n"
                                                                    "    <x.y-z_1/>\n"
                                                                    "    <canSitDown/>\n"
                                                                    "   </permissions>"));
    EXPECT_EQ(behavior.permissions().size(), 11u);
}

} // namespace zu
