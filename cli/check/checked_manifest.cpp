#include "check/checked_manifest.hpp"

#include "check/fixed_document.hpp"
#include "manifest_bytes.hpp"

#include <zupackage/package_info.hpp>

#include <filesystem>

namespace zu::cli {

namespace {

std::string folderOf(const std::string& path)
{
    const std::string folder = std::filesystem::path(path).parent_path().string();
    return folder.empty() ? "." : folder;
}

/// The settings for the manifest; those of the task stand before those of files.
/// @param path of the manifest; none for standard input.
RuleSettings settingsOf(const std::optional<std::string>& path, const CheckTask& task)
{
    RuleSettings settings = path ? settingsFor(folderOf(*path)) : RuleSettings();
    for (const auto& [id, severity] : task.settings.severities) {
        settings.severities[id] = severity;
        settings.reasons.erase(id);
    }
    for (const auto& [id, reason] : task.settings.reasons)
        settings.reasons[id] = reason;
    return settings;
}

/// @return false when they cannot be had, which the manifest's failure tells then.
bool takeSettings(CheckedManifest& checked, const std::optional<std::string>& path, const CheckTask& task,
                  authoring::CheckOptions& options)
{
    try {
        RuleSettings settings = settingsOf(path, task);
        options.severities = std::move(settings.severities);
        checked.reasons = std::move(settings.reasons);
    } catch (const SettingsError& error) {
        checked.failure = error.what();
        checked.failureExitCode = k_usage;
    } catch (const UnreadableSettings& error) {
        checked.failure = error.what();
    }
    checked.hasUnusableSettings = !checked.failure.empty();
    return !checked.hasUnusableSettings;
}

/// @return why the file could not be written; empty when it was.
std::string writeFile(const std::string& path, const std::string& bytes)
{
    try {
        replaceManifest(path, bytes);
        return {};
    } catch (const std::runtime_error& error) {
        return error.what();
    }
}

void fix(CheckedManifest& checked, const std::string& path, const CheckTask& task,
         const authoring::CheckOptions& options)
{
    FixedDocument fixed = fixedDocument(checked.document, checked.report, options, task.fixesUnsafe);
    if (fixed.fixes.empty())
        return;
    if (task.writesFixes) {
        checked.writeFailure = writeFile(path, fixed.document.text());
        if (!checked.writeFailure.empty())
            return;
        checked.document = std::move(fixed.document);
        checked.report = std::move(fixed.report);
        checked.isFixed = true;
    }
    checked.fixes = std::move(fixed.fixes);
}

} // namespace

CheckedManifest checkManifest(const std::string& path, const CheckTask& task)
{
    const std::optional<std::string> file = path == "-" ? std::nullopt : std::optional<std::string>(path);
    CheckedManifest checked;
    checked.name = shownName(path);
    authoring::CheckOptions options;
    std::string bytes;
    if (!readManifestBytes(path, bytes, checked.failure) || !takeSettings(checked, file, task, options))
        return checked;
    options.root = task.root;
    if (!options.root && file)
        options.root = folderOf(*file);
    checked.document = authoring::SourceDocument::parse(std::move(bytes));
    checked.report = authoring::check(checked.document, options);
    if (task.fixes)
        fix(checked, path, task, options);
    return checked;
}

} // namespace zu::cli
