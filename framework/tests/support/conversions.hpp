#pragma once

#include "fingerprint.hpp"

#include <zu/conversion.hpp>
#include <zu/registry.hpp>
#include <zu/type/string.hpp>

#include <gtest/gtest.h>

#include <string>

namespace zu {

namespace conversiontest {

/// A text of another type than std::string.
struct Name
{
    std::string text;

    friend bool operator<(const Name& a, const Name& b) { return a.text < b.text; }
};

class NameType final : public Native<Name, StringTypeInterface>
{
public:
    std::string_view get(const void* value) const override { return object(value).text; }
    void set(void* value, std::string_view text) const override { object(value).text = text; }
};

inline const bool g_nameRegistered = registerType(TypeInfo::of<Name>(), new NameType);

/// Converts and expects a refusal that leaves the target as it was.
/// @return what is said about it.
template <class T, class S>
std::string failureOf(const S& source, T target = T())
{
    const std::string before = fingerprint(AnyReference::from(target));
    ConversionFailure failure;
    EXPECT_FALSE(tryConvert(AnyReference::from(source), AnyReference::from(target), &failure));
    EXPECT_EQ(fingerprint(AnyReference::from(target)), before);
    return failure.message();
}

} // namespace conversiontest
} // namespace zu
