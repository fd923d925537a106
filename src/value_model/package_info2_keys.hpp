#pragma once

#include <zupackage/package_info2.hpp>

#include <map>
#include <string>
#include <utility>
#include <vector>

/// The keys of a PackageInfo2's maps, each for who stores a value and who looks it up.
namespace zu::keys {

/// A key, and the exact type of what is stored under it.
template <class T>
struct Key
{
    const char* name;
};

using Texts = std::map<std::string, std::string>;
using Requirements = std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>>;
using Values = std::map<std::string, AnyValue>;

inline constexpr Key<Texts> k_names{"names"};
inline constexpr Key<Texts> k_descriptions{"descriptions"};
inline constexpr Key<std::vector<PackageService>> k_services{"services"};
inline constexpr Key<std::vector<std::string>> k_executableFiles{"executableFiles"};
inline constexpr Key<Requirements> k_requirements{"requirements"};
inline constexpr Key<std::vector<std::string>> k_supportedLanguages{"supportedLanguages"};
inline constexpr Key<Values> k_contents{"contents"};

// In the map under k_contents.
inline constexpr Key<std::vector<BehaviorInfo>> k_behaviors{"behaviors"};
inline constexpr Key<std::vector<DialogInfo>> k_dialogs{"dialogs"};
inline constexpr Key<std::vector<LanguageInfo>> k_languages{"languages"};
inline constexpr Key<WebInfo> k_web{"web"};

} // namespace zu::keys
