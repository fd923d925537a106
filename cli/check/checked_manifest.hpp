#pragma once

#include "check/rule_settings.hpp"
#include "command.hpp"

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

/// A fix of a manifest.
struct ManifestFix
{
    std::string rule;
    std::string title;
    authoring::Place place; ///< in the file before all fixes
};

/// What became of a manifest.
struct CheckedManifest
{
    std::string name;                         ///< as messages show it, but any bytes
    std::string failure;                      ///< why it could not be checked; empty when it was
    bool hasUnusableSettings = false;         ///< which is why
    ExitCode failureExitCode = k_inputFailed; ///< wrong usage for settings that cannot be understood
    std::string writeFailure; ///< why its fixes could not be written; empty when they were, or there were none
    authoring::SourceDocument document;         ///< as the file is now
    authoring::CheckReport report;              ///< of that document
    std::map<std::string, std::string> reasons; ///< of suppressed findings, by their rules
    std::vector<ManifestFix> fixes;             ///< those that were made, or would be
    bool isFixed = false;                       ///< the fixes are in the file

    /// The failure as a clause: "cannot read a/manifest.xml: Permission denied".
    std::string complaint() const
    {
        return std::string("cannot ") + (hasUnusableSettings ? "check " : "read ") + name + ": " + failure;
    }
    /// What the failure is, in a word or two.
    const char* failureTitle() const { return hasUnusableSettings ? "not checked" : "unreadable"; }
};

/// Checks a manifest file, or what standard input holds for "-".
CheckedManifest checkManifest(const std::string& path, const CheckTask& task);

} // namespace zu::cli
