#include <zupackage/package_info.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <type_traits>

namespace zu {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::SizeIs;

// The small records are open structures with the special members of their fields.
template <class Record>
constexpr bool isOpenRecord =
    std::is_aggregate_v<Record>&& std::is_nothrow_move_constructible_v<Record>&& std::is_copy_constructible_v<Record>&&
        std::is_same_v<decltype(std::declval<Record&>() = std::declval<const Record&>()), Record&>&&
            std::is_same_v<decltype(std::declval<Record&>() = std::declval<Record&&>()), Record&>;
static_assert(isOpenRecord<RobotRequirement> && isOpenRecord<MorvoRequirement> && isOpenRecord<PackageService>);

TEST(RobotRequirement, FieldsStandInDeclarationOrder)
{
    const auto& [model, minHead, maxHead, minBody, maxBody] = RobotRequirement{"m", "1", "2", "3", "4"};
    EXPECT_THAT((std::list<std::string>{model, minHead, maxHead, minBody, maxBody}),
                ElementsAre("m", "1", "2", "3", "4"));
    const RobotRequirement empty;
    EXPECT_EQ(empty.model + empty.minHeadVersion + empty.maxHeadVersion + empty.minBodyVersion + empty.maxBodyVersion,
              "");
}

TEST(MorvoRequirement, StartsEmpty)
{
    const MorvoRequirement empty;
    EXPECT_EQ(empty.minVersion + empty.maxVersion, "");
    const MorvoRequirement range{"1", "2"};
    EXPECT_EQ(range.minVersion, "1");
    EXPECT_EQ(range.maxVersion, "2");
}

TEST(PackageService, StartsEmptyAndNotAutomatic)
{
    const PackageService service;
    EXPECT_EQ(service.execStart, "");
    EXPECT_EQ(service.name, "");
    EXPECT_FALSE(service.autoRun);
    EXPECT_THAT(service.envVars, IsEmpty());
}

TEST(PackageService, ACopyHasItsOwnEnvironment)
{
    const PackageService service{"run", "name", true, {{"A", "1"}}};
    PackageService copy = service;
    copy.envVars["B"] = "2";
    EXPECT_THAT(service.envVars, ElementsAre(Pair("A", "1")));
    EXPECT_THAT(copy.envVars, SizeIs(2));
}

} // namespace zu
