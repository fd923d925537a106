// How the conversion goes through nested values.
#include "variant/vxconversion.hpp"

#include <gtest/gtest.h>

#include <list>
#include <map>

namespace VX {

/// A dynamic that tells that it was looked into.
struct Talker
{
    int number = 0;

    static inline std::string told;
};

class TalkerType final : public zu::Native<Talker, zu::DynamicTypeInterface>
{
public:
    zu::AnyReference get(void* value) const override
    {
        Talker::told += std::to_string(object(value).number);
        return zu::AnyReference::from(object(value).number);
    }
    void set(void*, const zu::AnyReference&) const override {}
};

inline bool operator<(const Talker& a, const Talker& b) { return a.number < b.number; }

namespace {

using test::conversionError;
using test::refusal;
using test::shown;

[[maybe_unused]] const bool g_talkerRegistered = zu::registerType(zu::TypeInfo::of<Talker>(), new TalkerType);

} // namespace

TEST(VXConversion, ValuesNestedTooDeepAreRefused)
{
    const auto nested = [](int levels) {
        zu::AnyValue value = zu::AnyValue::from(1);
        for (int i = 0; i < levels; ++i)
            value = zu::AnyValue::from(std::vector<zu::AnyValue>{value});
        return value;
    };
    EXPECT_EQ(shown(nested(10)), "[[[[[[[[[[1]]]]]]]]]]");
    EXPECT_EQ(shown(nested(64)), std::string(64, '[') + "1" + std::string(64, ']'));
    EXPECT_EQ(refusal(nested(65)), conversionError("the value is nested deeper than 64 levels"));
}

TEST(VXConversion, DynamicsThatHoldDynamicsAreLevels)
{
    const auto nested = [](int levels) {
        zu::AnyValue value = zu::AnyValue::from(1);
        for (int i = 0; i < levels; ++i)
            value = zu::AnyValue(zu::AnyReference::from(value));
        return value;
    };
    EXPECT_EQ(shown(nested(64)), "1");
    EXPECT_EQ(refusal(nested(65)), conversionError("the value is nested deeper than 64 levels"));
}

TEST(VXConversion, TheKeyOfAnEntryIsConvertedBeforeItsValue)
{
    Talker::told.clear();
    EXPECT_EQ(shown(std::map<Talker, Talker>{{{1}, {2}}, {{3}, {4}}}), "[[1, 2], [3, 4]]");
    EXPECT_EQ(Talker::told, "1234");
}

TEST(VXConversion, WhatIsReferredToAgainAndAgainIsLimited)
{
    std::list<std::vector<zu::AnyReference>> lists(1);
    for (int i = 0; i < 21; ++i)
        lists.push_back({2, zu::AnyReference::from(lists.back())});
    EXPECT_EQ(refusal(lists.back()), conversionError("the value refers to parts of itself in more than 100000 ways"));
}

} // namespace VX
