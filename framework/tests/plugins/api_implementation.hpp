#pragma once

#include "plugin_api.hpp"

#include <zu/conversion.hpp>

#include <map>
#include <stdexcept>

namespace plug {

using Map = std::map<std::string, std::vector<zu::AnyValue>>;

// Anew in every library: what a side does, it does with its own instances of the templates.
// The test program and each plug-in include this in one source.
namespace {

struct Hidden
{
    int number = 0;
};

inline zu::AnyValue make(const std::string& what)
{
    if (what == "int")
        return zu::AnyValue::from(42);
    if (what == "string")
        return zu::AnyValue::from("forty-two");
    if (what == "list")
        return zu::AnyValue::from(std::vector<std::string>{"a", "b"});
    if (what == "map")
        return zu::AnyValue::from(Map{{"k", {zu::AnyValue::from(1), zu::AnyValue::from("b")}}});
    if (what == "reading")
        return zu::AnyValue::from(Reading{"thermometer", {20.5, 21.0}});
    if (what == "dynamic") {
        const zu::AnyValue nested = zu::AnyValue::from(Reading{"nested", {}});
        return zu::AnyValue(zu::AnyReference::from(nested));
    }
    throw std::invalid_argument(what);
}

inline bool recognises(const std::string& what, const zu::AnyReferenceBase& value)
{
    if (what == "int")
        return value.holds<int>() && *value.getIf<int>() == 42;
    if (what == "string")
        return value.holds<std::string>() && *value.getIf<std::string>() == "forty-two";
    if (what == "list")
        return value.holds<std::vector<std::string>>() && value.getIf<std::vector<std::string>>()->at(1) == "b";
    if (what == "map")
        return value.holds<Map>() && value.getIf<Map>()->at("k").at(1).toString() == "b";
    if (what == "reading") {
        const auto* reading = value.getIf<Reading>();
        return reading && reading->sensor == "thermometer" && value._element(1).to<std::vector<int>>()[1] == 21;
    }
    if (what == "dynamic")
        return value.holds<zu::AnyValue>() && value.getIf<zu::AnyValue>()->to<Reading>().sensor == "nested";
    throw std::invalid_argument(what);
}

inline const zu::TypeInterface* typeOfReading() { return zu::typeOf<Reading>(); }

inline void fail() { zu::AnyValue::from("text").to<int>(); }

inline std::string caughtFrom(void (*raise)())
{
    try {
        raise();
    } catch (const zu::ConversionError& error) {
        return error.what();
    }
    return {};
}

inline std::string anonymousRefusal()
{
    try {
        zu::AnyValue::from(Hidden());
    } catch (const std::invalid_argument& error) {
        return error.what();
    }
    return {};
}

inline bool registersAnonymous() { return zu::registerStruct<Hidden>("::plug::Hidden", {{"number", &Hidden::number}}); }

inline constexpr Api k_api{&make,       &recognises,       &typeOfReading,     &fail,
                           &caughtFrom, &anonymousRefusal, &registersAnonymous};

} // namespace
} // namespace plug
