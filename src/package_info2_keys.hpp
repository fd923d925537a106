#pragma once

/// The keys of a PackageInfo2's maps, each for who stores a value and who looks it up.
namespace zu::keys {

inline constexpr char k_names[] = "names";
inline constexpr char k_descriptions[] = "descriptions";
inline constexpr char k_services[] = "services";
inline constexpr char k_executableFiles[] = "executableFiles";
inline constexpr char k_requirements[] = "requirements";
inline constexpr char k_supportedLanguages[] = "supportedLanguages";
inline constexpr char k_contents[] = "contents";

// In the map under k_contents.
inline constexpr char k_behaviors[] = "behaviors";
inline constexpr char k_dialogs[] = "dialogs";
inline constexpr char k_languages[] = "languages";
inline constexpr char k_web[] = "web";

} // namespace zu::keys
