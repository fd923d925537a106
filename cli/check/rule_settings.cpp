#include "check/rule_settings.hpp"

#include "check/severity_names.hpp"
#include "manifest_bytes.hpp"

#include <zupackage/authoring/rule.hpp>

#include <filesystem>
#include <sstream>
#include <system_error>

namespace zu::cli {

namespace {

namespace fs = std::filesystem;

constexpr char k_fileName[] = ".zupackage-check";

std::string trimmed(std::string_view text)
{
    constexpr std::string_view k_white = " \t\r";
    const std::size_t first = text.find_first_not_of(k_white);
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(k_white) - first + 1));
}

std::string severityChoices()
{
    std::string choices;
    for (const auto& [name, severity] : k_severityNames)
        choices.append(name).append(", ");
    return choices + "or off";
}

/// @param name of the file as messages show it.
std::string readSettings(const fs::path& path, const std::string& name)
{
    constexpr std::size_t k_most = std::size_t{1024} * 1024;
    std::error_code error;
    const fs::file_type type = fs::status(path, error).type();
    if (!error && type != fs::file_type::regular)
        throw UnreadableSettings(name + ": Not a regular file");
    std::string content;
    std::string failure;
    if (!readFileBytes(path.string(), k_most + 1, content, failure))
        throw UnreadableSettings(name + ": " + failure);
    if (content.size() > k_most)
        throw SettingsError(name + ": larger than 1 MiB, which no settings are");
    return content;
}

} // namespace

bool addSetting(std::string_view text, const std::string& reason, RuleSettings& settings)
{
    const std::size_t sign = text.find('=');
    if (sign == std::string_view::npos)
        throw SettingsError("\"" + trimmed(text) + "\" is not of the form RULE=SEVERITY");
    const std::string id = trimmed(text.substr(0, sign));
    const std::string severity = trimmed(text.substr(sign + 1));
    if (!authoring::findRule(id))
        throw SettingsError("there is no rule \"" + id + "\"; --list-rules shows them");
    const auto named = severityNamed(severity);
    if (!named && severity != "off")
        throw SettingsError("\"" + severity + "\" is none of " + severityChoices());
    settings.severities[id] = named;
    settings.reasons.erase(id);
    if (!named)
        settings.reasons[id] = reason;
    return !named;
}

RuleSettings parseSettings(const std::string& content, const std::string& name)
{
    RuleSettings settings;
    std::istringstream lines(content);
    std::string above; // the comment that the settings stand below
    bool isAboveOver = true;
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
        ++number;
        const std::size_t hash = line.find('#');
        const std::string setting = trimmed(line.substr(0, hash));
        const std::string comment = hash == std::string::npos ? "" : trimmed(std::string_view(line).substr(hash + 1));
        if (setting.empty()) {
            above = isAboveOver || comment.empty() ? comment : above + " " + comment;
            isAboveOver = comment.empty();
            continue;
        }
        isAboveOver = true;
        const std::string place = name + ":" + std::to_string(number) + ": ";
        const std::string& why = comment.empty() ? above : comment;
        bool isOff = false;
        try {
            isOff = addSetting(setting, place + why, settings);
        } catch (const SettingsError& error) {
            throw SettingsError(place + error.what());
        }
        if (isOff && why.empty())
            throw SettingsError(place + "a rule that is off needs a reason, as a comment behind it or above");
    }
    return settings;
}

RuleSettings settingsFor(const std::string& folder)
{
    std::error_code error;
    fs::path place = fs::canonical(folder.empty() ? "." : folder, error);
    if (error)
        return {};
    for (;; place = place.parent_path()) {
        const fs::path file = place / k_fileName;
        if (fs::exists(fs::symlink_status(file, error))) { // a link that leads nowhere was meant as settings, too
            const std::string name = file.lexically_proximate(fs::current_path(error)).string();
            return parseSettings(readSettings(file, name), name);
        }
        if (!place.has_relative_path())
            return {};
    }
}

} // namespace zu::cli
