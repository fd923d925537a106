#include "package_user.hpp"

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/struct.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <dlfcn.h>

namespace zu {

namespace {

using Values = std::map<std::string, AnyValue>;

const bool g_knownBefore = findType("::zu::PackageInfo") != nullptr;

void* load(const char* file)
{
    void* library = dlopen(file, RTLD_NOW | RTLD_LOCAL);
    if (!library)
        throw std::runtime_error(dlerror());
    return library;
}

const FoundWhileLoading& loadUser()
{
    const auto function =
        reinterpret_cast<FoundWhileLoadingFunction>(dlsym(load(PACKAGE_USER_LIBRARY), k_foundWhileLoading));
    if (!function)
        throw std::runtime_error(dlerror());
    return *function();
}

} // namespace

TEST(Loading, MakesTheTypesKnown)
{
    EXPECT_FALSE(g_knownBefore);
    load(ZUPACKAGE_LIBRARY);
    for (const char* name :
         {"::zu::PackageInfo", "::zu::PackageInfoPrivate", "::zu::BehaviorInfo", "::zu::BehaviorInfoPrivate",
          "::zu::DialogInfo", "::zu::DialogInfoPrivate", "::zu::LanguageInfo", "zu::LanguageInfoPrivate"}) {
        const TypeInterface* type = findType(name);
        ASSERT_NE(type, nullptr) << name;
        EXPECT_EQ(type->kind(), TypeKind::Tuple) << name;
        EXPECT_EQ(getType(type->info()), type) << name;
    }
    EXPECT_NE(findType("VX::VXValue"), nullptr);
}

TEST(Loading, MakesValuesWithoutKnowingTheirTypes)
{
    load(ZUPACKAGE_LIBRARY);
    AnyValue package(findType("::zu::PackageInfo"));
    Values members = package.to<Values>();
    AnyValue behavior(findType("::zu::BehaviorInfo"));
    behavior.reference()._element(0).set("path");
    members["uuid"] = AnyValue::from("u");
    members["behaviors"] = AnyValue::from(std::vector<AnyValue>{behavior});
    package.reference().set(AnyValue::from(members));
    EXPECT_EQ(package._element(0).text(), "u");
    EXPECT_EQ(package._element(11)._element(0)._element(0).text(), "path");
}

// The registry keeps what was registered, so that the library must not go while the registry is there.
TEST(Loading, OutlivesItsUnloading)
{
    EXPECT_EQ(dlclose(load(ZUPACKAGE_LIBRARY)), 0);
    EXPECT_EQ(AnyValue(findType("::zu::PackageInfo")).to<Values>().count("uuid"), 1u);
    load(ZUPACKAGE_LIBRARY);
    EXPECT_EQ(AnyValue(findType("::zu::PackageInfo")).to<Values>().count("uuid"), 1u);
}

TEST(Loading, OutlivesTheUnloadingOfALibraryThatUsedItsRecordsFirst)
{
    load(ZUPACKAGE_LIBRARY);
    EXPECT_EQ(findType("::zu::RobotRequirement"), nullptr);
    EXPECT_EQ(dlclose(load(PACKAGE_USER_LIBRARY)), 0);
    ASSERT_EQ(dlopen(PACKAGE_USER_LIBRARY, RTLD_NOW | RTLD_NOLOAD), nullptr);
    AnyValue requirement(findType("::zu::RobotRequirement"));
    requirement.reference()._element(0).set("model");
    AnyValue package(findType("::zu::PackageInfo"));
    package.reference()._element(14).set(AnyValue::from(std::vector<AnyValue>{requirement}));
    EXPECT_EQ(package._element(14)._element(0)._element(0).text(), "model");
}

TEST(Loading, StaticInitialisersOfAnotherLibraryFindItReady)
{
    const FoundWhileLoading& found = loadUser();
    EXPECT_EQ(found.package.type(), findType("::zu::PackageInfo"));
    EXPECT_EQ(found.package._element(0).text(), "static");
    EXPECT_EQ(found.requirement.type()->name(), "::zu::RobotRequirement");
    EXPECT_EQ(found.requirement._element(0).text(), "static");
    EXPECT_EQ(found.permission, "canStandUp");
    EXPECT_EQ(found.failure, "Could not open absent for reading.");
}

TEST(Loading, ASmallRecordIsKnownOnceALibraryUsesIt)
{
    const FoundWhileLoading& found = loadUser();
    EXPECT_EQ(findType("::zu::RobotRequirement"), found.requirement.type());
    EXPECT_EQ(findType("::zu::WebInfo"), nullptr); // which nobody has used here
}

} // namespace zu
