#pragma once

#include "check/rule_settings.hpp"

#include <zupackage/authoring/check.hpp>

#include <optional>
#include <string>
#include <vector>

namespace zu::cli {

/// What to do with a manifest.
struct CheckTask
{
    std::optional<std::string> root; ///< the folder of the package, where it is not that of the manifest
    RuleSettings settings;           ///< those of the command line, before which those of files stand back
    bool fixes = false;
    bool fixesUnsafe = false;
    bool writesFixes = false; ///< else they are made for the report alone
};

/// A fix that was made.
struct AppliedFix
{
    std::string rule;
    std::string title;
    authoring::Place place; ///< in the document as it was when the fix was made
};

/// What became of a manifest.
struct CheckedManifest
{
    std::string name;         ///< as messages show it
    std::string failure;      ///< why it could not be read; empty when it was
    std::string writeFailure; ///< why its fixes could not be written; empty when they were, or there were none
    authoring::SourceDocument document;         ///< after the fixes
    authoring::CheckReport report;              ///< of that document
    std::map<std::string, std::string> reasons; ///< of suppressed findings, by their rules
    std::vector<AppliedFix> fixes;
};

/// Checks a manifest file, or what standard input holds for "-".
/// @throws SettingsError for the file of settings that applies to it.
CheckedManifest checkManifest(const std::string& path, const CheckTask& task);

} // namespace zu::cli
