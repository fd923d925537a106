#pragma once

#include <zu/any_value.hpp>

#include <string>
#include <vector>

/// What the test program and the plug-ins that it loads have in common.
namespace plug {

/// A struct that both sides make an interface of, each for itself.
struct Reading
{
    std::string sensor;
    std::vector<double> values;
};

/// What a plug-in hands out. Each function works with the interfaces that the plug-in's own code made.
struct Api
{
    /// A value of the type that `what` names: "int", "string", "list", "map", "reading", "dynamic".
    zu::AnyValue (*make)(const std::string& what);

    /// Whether the value is exactly the one that make() gives.
    bool (*recognises)(const std::string& what, const zu::AnyReferenceBase& value);

    const zu::TypeInterface* (*typeOfReading)();

    /// Throws the error of a failed conversion.
    void (*fail)();

    /// The text of the conversion error that `raise` throws; empty for anything else.
    std::string (*caughtFrom)(void (*raise)());

    /// What is said to a type of the plug-in's anonymous namespace, by typeOf(); empty when it is let through.
    std::string (*anonymousRefusal)();

    /// Whether registering a type of the plug-in's anonymous namespace is let through.
    bool (*registersAnonymous)();
};

/// The name of the function that gives the Api.
inline constexpr const char* k_entry = "plugApi";
using Entry = const Api* (*)();

} // namespace plug

template <>
struct zu::StructSchema<plug::Reading>
{
    static Schema<plug::Reading> describe()
    {
        return {"::plug::Reading", {{"sensor", &plug::Reading::sensor}, {"values", &plug::Reading::values}}};
    }
};
