#include "support/samples.hpp"

#include <zu/type_info.hpp>

#include <gtest/gtest.h>

#include <list>
#include <unordered_set>

namespace zu {

namespace {

struct Hidden
{
};

} // namespace

TEST(TypeInfo, IgnoresQualifiersAndReferences)
{
    EXPECT_EQ(TypeInfo::of<const int&>(), TypeInfo::of<int>());
    EXPECT_EQ(TypeInfo::of<volatile int>(), TypeInfo::of<int>());
    EXPECT_NE(TypeInfo::of<const int*>(), TypeInfo::of<int*>());
}

TEST(TypeInfo, TellsTypesApartThatLookAlike)
{
    EXPECT_NE(TypeInfo::of<long>(), TypeInfo::of<long long>());
    EXPECT_NE(TypeInfo::of<char>(), TypeInfo::of<signed char>());
    EXPECT_TRUE(TypeInfo::of<int>() < TypeInfo::of<char>() || TypeInfo::of<char>() < TypeInfo::of<int>());
}

TEST(TypeInfo, HashesEqualTypesEqually)
{
    const std::unordered_set<TypeInfo> types{TypeInfo::of<int>(), TypeInfo::of<const int>(), TypeInfo::of<char>()};
    EXPECT_EQ(types.size(), 2u);
}

TEST(TypeInfo, NamesAreDemangledAndStringsShort)
{
    EXPECT_EQ(TypeInfo::of<sample::Point>().name(), "sample::Point");
    EXPECT_EQ(TypeInfo::of<std::string>().name(), "std::string");
    EXPECT_EQ(TypeInfo::of<std::list<std::string>>().name(),
              "std::__cxx11::list<std::string, std::allocator<std::string > >");
}

TEST(TypeInfo, KnowsWhatStandsInAnAnonymousNamespace)
{
    EXPECT_TRUE(TypeInfo::of<Hidden>().isAnonymous());
    EXPECT_TRUE(TypeInfo::of<std::vector<Hidden*>>().isAnonymous());
    EXPECT_FALSE(TypeInfo::of<sample::Point>().isAnonymous());
}

} // namespace zu
