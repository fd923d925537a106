#include "support/conversions.hpp"
#include "support/samples.hpp"

#include <zu/conversion.hpp>
#include <zu/native/struct.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <list>
#include <map>
#include <tuple>

namespace zu {

namespace conversiontest {

struct Renamed
{
    int x = 0;
    int z = 0;
};

const bool g_renamedRegistered = registerStruct<Renamed>("::Renamed", {{"x", &Renamed::x}, {"z", &Renamed::z}});

} // namespace conversiontest

using conversiontest::failureOf;
using conversiontest::Name;
using conversiontest::Renamed;
using sample::Point;
using sample::WidePoint;

TEST(ContainerConversion, ListsConvertByElementAndEmptyOnesEmptyTheTarget)
{
    EXPECT_EQ(AnyValue::from(std::vector<int>{1, 2}).to<std::list<double>>(), (std::list<double>{1, 2}));
    EXPECT_EQ(AnyValue::from(std::list<std::string>{"a"}).to<std::vector<std::string>>(),
              std::vector<std::string>{"a"});
    EXPECT_EQ(AnyValue::from(std::vector<bool>{true, false}).to<std::vector<int>>(), (std::vector<int>{1, 0}));
    EXPECT_EQ(AnyValue::from(std::vector<int>{1, 0}).to<std::vector<bool>>(), (std::vector<bool>{true, false}));
    std::list<double> target{1.5};
    convert(AnyValue::from(std::vector<int>()), AnyReference::from(target));
    EXPECT_TRUE(target.empty());
}

TEST(ContainerConversion, ListsOfDynamicsTakeAndGiveAnyElement)
{
    const std::vector<AnyValue> mixed{AnyValue::from(1), AnyValue::from(2.0), AnyValue::from(AnyValue::from(3))};
    EXPECT_EQ(AnyValue::from(mixed).to<std::vector<int>>(), (std::vector<int>{1, 2, 3}));
    const auto wrapped = AnyValue::from(std::vector<int>{1}).to<std::list<AnyValue>>();
    ASSERT_EQ(wrapped.size(), 1u);
    EXPECT_NE(wrapped.front().getIf<int>(), nullptr);
}

TEST(ContainerConversion, MapsConvertKeysAndValues)
{
    using Source = std::map<std::string, std::vector<int>>;
    using Target = std::map<std::string, std::list<long>>;
    EXPECT_EQ(AnyValue::from(Source{{"a", {1}}, {"b", {}}}).to<Target>(), (Target{{"a", {1}}, {"b", {}}}));
    EXPECT_EQ((AnyValue::from(std::map<int, float>{{1, 2.f}}).to<std::map<long, int>>()),
              (std::map<long, int>{{1, 2}}));
    EXPECT_EQ((AnyValue::from(std::map<int, int>()).to<std::map<long, int>>()), (std::map<long, int>()));
}

TEST(ContainerConversion, KeysThatWouldBecomeOneAreRefused)
{
    const std::map<double, int> close{{1.25, 1}, {1.5, 2}};
    EXPECT_THAT((failureOf<std::map<int, int>>(close, {{7, 7}})),
                testing::EndsWith(": two keys become one, the second being {1}"));
}

TEST(ContainerConversion, TuplesConvertByPosition)
{
    const auto tuple = AnyValue::from(std::pair<int, std::string>(1, "b")).to<std::tuple<double, Name>>();
    EXPECT_EQ(std::get<0>(tuple), 1.0);
    EXPECT_EQ(std::get<1>(tuple).text, "b");
    EXPECT_EQ(AnyValue::from(std::pair<int, int>(1, 2)).to<Point>(), (Point{1, 2}));
    EXPECT_EQ((AnyValue::from(Point{1, 2}).to<std::pair<long, long>>()), (std::pair<long, long>(1, 2)));
    EXPECT_EQ((failureOf<Point>(std::tuple<int, int, int>())),
              "Cannot convert std::tuple<int, int, int> to ::sample::Point: 3 values do not make the 2 members of "
              "::sample::Point");
}

TEST(ContainerConversion, StructsConvertByName)
{
    const auto wide = AnyValue::from(Point{1, 2}).to<WidePoint>();
    EXPECT_EQ(wide.x, 1);
    EXPECT_EQ(wide.y, 2);
    EXPECT_EQ(failureOf<Renamed>(Point{1, 2}),
              "Cannot convert ::sample::Point to ::Renamed: there is no value for the member z");
}

TEST(ContainerConversion, StructsConvertToAndFromMaps)
{
    EXPECT_EQ((AnyValue::from(Point{1, 2}).to<std::map<std::string, long>>()),
              (std::map<std::string, long>{{"x", 1}, {"y", 2}}));
    using Dynamics = std::map<std::string, AnyValue>;
    const auto line = AnyValue::from(Dynamics{{"name", AnyValue::from("n")},
                                              {"points", AnyValue::from(std::vector<Dynamics>{
                                                             {{"x", AnyValue::from(1)}, {"y", AnyValue::from(2)}}})},
                                              {"notes", AnyValue::from(Dynamics())}})
                          .to<sample::Line>();
    EXPECT_EQ(line.name, "n");
    EXPECT_THAT(line.points, testing::ElementsAre(Point{1, 2}));
    EXPECT_EQ(failureOf<Point>(std::map<int, int>{{1, 2}}),
              "Cannot convert std::map<int, int> to ::sample::Point: a key is no member's name");
    EXPECT_THAT(failureOf<Point>(std::map<std::string, int>{{"x", 1}}),
                testing::EndsWith(": there is no value for the member y"));
    EXPECT_THAT((failureOf<std::pair<int, int>>(std::map<std::string, int>{{"x", 1}})),
                testing::EndsWith(": the members of std::pair<int, int> have no names"));
    EXPECT_THAT((failureOf<std::map<std::string, int>>(std::pair<int, int>())),
                testing::EndsWith(": the members of std::pair<int, int> have no names"));
    EXPECT_THAT((failureOf<std::map<int, int>>(Point())),
                testing::EndsWith(" at [\"x\"](key): std::string does not convert to int"));
}

} // namespace zu
