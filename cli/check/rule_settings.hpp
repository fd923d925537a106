#pragma once

#include <zupackage/authoring/check.hpp>

#include <map>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zu::cli {

/// What a user has decided about rules, in a file or on the command line.
struct RuleSettings
{
    /// By the id of a rule; nothing switches it off.
    std::map<std::string, std::optional<authoring::Severity>> severities;
    /// By the id of a rule that is switched off, who says so and why: ".zupackage-check:3: we have no French voice".
    std::map<std::string, std::string> reasons;
};

/// Settings that cannot be understood; the text says where, what and what would do.
class SettingsError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Settings that cannot be read; the text says where and why.
class UnreadableSettings : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Adds "rule=severity" or "rule=off", as it stands in a file or on the command line.
/// @throws SettingsError for another text, a rule or a severity that there is not.
/// @param reason for which the rule is off, when it is.
/// @return whether it is off.
bool addSetting(std::string_view text, const std::string& reason, RuleSettings& settings);

/// Reads the settings in a file: one a line, with its reason as a comment behind it or in the lines above it.
/// @param name of the file as messages show it.
/// @throws SettingsError also for a rule that is switched off without a reason.
RuleSettings parseSettings(const std::string& content, const std::string& name);

/// The settings for a manifest in that folder: those of the nearest file ".zupackage-check", beside it or above.
/// None when there is no such file.
/// @throws SettingsError for a file that cannot be understood, or is larger than any settings are.
/// @throws UnreadableSettings for one that cannot be read, and for what is no regular file, which might have no end.
RuleSettings settingsFor(const std::string& folder);

} // namespace zu::cli
