#pragma once

#include <zupackage/package_info2.hpp>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The keys of a PackageInfo2's maps, each for who stores a value and who looks it up.
namespace zupackage::keys {

/// A key, and the exact type of what is stored under it.
template <class T>
struct Key
{
    const char* name;
};

using Texts = std::map<std::string, std::string>;
using Requirements = std::pair<std::vector<zu::RobotRequirement>, std::vector<zu::MorvoRequirement>>;
using Values = std::map<std::string, zu::AnyValue>;

inline constexpr Key<Texts> k_names{"names"};
inline constexpr Key<Texts> k_descriptions{"descriptions"};
inline constexpr Key<std::vector<zu::PackageService>> k_services{"services"};
inline constexpr Key<std::vector<std::string>> k_executableFiles{"executableFiles"};
inline constexpr Key<Requirements> k_requirements{"requirements"};
inline constexpr Key<std::vector<std::string>> k_supportedLanguages{"supportedLanguages"};
inline constexpr Key<Values> k_contents{"contents"};

// In the map under k_contents.
inline constexpr Key<std::vector<zu::BehaviorInfo>> k_behaviors{"behaviors"};
inline constexpr Key<std::vector<zu::DialogInfo>> k_dialogs{"dialogs"};
inline constexpr Key<std::vector<zu::LanguageInfo>> k_languages{"languages"};
inline constexpr Key<zu::WebInfo> k_web{"web"};

} // namespace zupackage::keys
