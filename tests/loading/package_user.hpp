#pragma once

#include <zu/any_value.hpp>

#include <string>

/// What the static initialisers of a library found that uses the package library.
struct FoundWhileLoading
{
    zu::AnyValue package;     ///< with the uuid "static"
    zu::AnyValue requirement; ///< a robot requirement of the model "static", whose type was not used before
    std::string permission;   ///< a constant of the package library
    std::string failure;      ///< what reading an absent manifest threw
};

/// The name of the function that gives it.
inline constexpr const char* k_foundWhileLoading = "foundWhileLoading";
using FoundWhileLoadingFunction = const FoundWhileLoading* (*)();
