#pragma once

#include <zupackage/authoring/diagnostic.hpp>

#include <array>
#include <optional>
#include <string_view>
#include <utility>

namespace zu::cli {

/// The severities as people write them, the worst first.
inline constexpr std::array<std::pair<std::string_view, authoring::Severity>, 4> k_severityNames = {
    {{"error", authoring::Severity::Error},
     {"warning", authoring::Severity::Warning},
     {"info", authoring::Severity::Info},
     {"pedantic", authoring::Severity::Pedantic}}};

inline std::string_view nameOf(authoring::Severity severity)
{
    for (const auto& [name, named] : k_severityNames) {
        if (named == severity)
            return name;
    }
    return {};
}

inline std::optional<authoring::Severity> severityNamed(std::string_view text)
{
    for (const auto& [name, severity] : k_severityNames) {
        if (name == text)
            return severity;
    }
    return std::nullopt;
}

} // namespace zu::cli
