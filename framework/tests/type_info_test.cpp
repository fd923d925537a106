#include "support/samples.hpp"

#include <zu/type_info.hpp>

#include <gtest/gtest.h>

#include <array>
#include <functional>
#include <list>
#include <memory>
#include <set>
#include <tuple>
#include <unordered_map>
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

TEST(TypeInfo, NamesAreThoseThatAPersonWrites)
{
    using Point = sample::Point;
    const std::pair<TypeInfo, const char*> names[] = {
        {TypeInfo::of<int>(), "int"},
        {TypeInfo::of<unsigned long>(), "unsigned long"},
        {TypeInfo::of<Point>(), "sample::Point"},
        {TypeInfo::of<std::string>(), "std::string"},
        {TypeInfo::of<std::string_view>(), "std::string_view"},
        {TypeInfo::of<std::wstring>(), "std::basic_string<wchar_t>"},
        {TypeInfo::of<std::list<std::string>>(), "std::list<std::string>"},
        {TypeInfo::of<std::vector<std::vector<Point>>>(), "std::vector<std::vector<sample::Point>>"},
        {TypeInfo::of<std::map<std::string, int>>(), "std::map<std::string, int>"},
        {TypeInfo::of<std::map<int, Point, std::greater<int>>>(), "std::map<int, sample::Point, std::greater<int>>"},
        {TypeInfo::of<std::map<int, int>::value_type>(), "std::pair<const int, int>"},
        {TypeInfo::of<std::unordered_map<std::string, Point>>(), "std::unordered_map<std::string, sample::Point>"},
        {TypeInfo::of<std::unordered_set<int>>(), "std::unordered_set<int>"},
        {TypeInfo::of<std::set<std::string>>(), "std::set<std::string>"},
        {TypeInfo::of<std::array<std::string, 3>>(), "std::array<std::string, 3>"},
        {TypeInfo::of<std::pair<int, std::less<int>>>(), "std::pair<int, std::less<int>>"},
        {TypeInfo::of<std::unique_ptr<Point>>(), "std::unique_ptr<sample::Point>"},
        {TypeInfo::of<const char*>(), "const char*"},
        {TypeInfo::of<const char* const*>(), "const char* const*"},
        {TypeInfo::of<std::vector<const Point*>>(), "std::vector<const sample::Point*>"},
        {TypeInfo::of<std::function<int(const std::string&, std::list<int>)>>(),
         "std::function<int (const std::string&, std::list<int>)>"},
        {TypeInfo::of<int (*)(const Point&)>(), "int (*)(const sample::Point&)"},
        {TypeInfo::of<std::tuple<>>(), "std::tuple<>"},
        {TypeInfo::of<Hidden>(), "zu::(anonymous namespace)::Hidden"},
        {TypeInfo::of<std::map<std::string, int>::iterator>(),
         "std::_Rb_tree_iterator<std::pair<const std::string, int>>"},
    };
    for (const auto& [info, name] : names)
        EXPECT_EQ(info.name(), name);
}

TEST(TypeInfo, KnowsWhatStandsInAnAnonymousNamespace)
{
    EXPECT_TRUE(TypeInfo::of<Hidden>().isAnonymous());
    EXPECT_TRUE(TypeInfo::of<std::vector<Hidden*>>().isAnonymous());
    EXPECT_FALSE(TypeInfo::of<sample::Point>().isAnonymous());
}

} // namespace zu
