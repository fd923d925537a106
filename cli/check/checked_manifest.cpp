#include "check/checked_manifest.hpp"

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

/// Fixes the document until nothing is left to fix: a fix may uncover the next.
void fix(CheckedManifest& checked, const CheckTask& task, const authoring::CheckOptions& options)
{
    constexpr int k_mostRounds = 100;
    for (int round = 0; round < k_mostRounds; ++round) {
        std::vector<std::size_t> applied;
        std::string text = authoring::applyFixes(checked.document, checked.report.findings, task.fixesUnsafe, &applied);
        if (text == checked.document.text())
            return;
        for (const std::size_t index : applied) {
            const authoring::Diagnostic& finding = checked.report.findings[index];
            checked.fixes.push_back({finding.rule, finding.fix->title, finding.range.begin});
        }
        checked.document = authoring::SourceDocument::parse(std::move(text));
        checked.report = authoring::check(checked.document, options);
    }
}

} // namespace

CheckedManifest checkManifest(const std::string& path, const CheckTask& task)
{
    const bool isFile = path != "-";
    CheckedManifest checked;
    checked.name = shownName(path);
    std::string bytes;
    if (!readManifestBytes(path, bytes, checked.failure))
        return checked;

    RuleSettings settings = isFile ? settingsFor(folderOf(path)) : RuleSettings();
    for (const auto& [id, severity] : task.settings.severities)
        settings.severities[id] = severity;
    for (const auto& [id, reason] : task.settings.reasons)
        settings.reasons[id] = reason;
    checked.reasons = settings.reasons;

    authoring::CheckOptions options;
    options.root = task.root;
    if (!options.root && isFile)
        options.root = folderOf(path);
    options.severities = settings.severities;
    checked.document = authoring::SourceDocument::parse(std::move(bytes));
    checked.report = authoring::check(checked.document, options);
    if (task.fixes)
        fix(checked, task, options);
    if (checked.fixes.empty() || !task.writesFixes)
        return checked;
    try {
        replaceManifest(path, checked.document.text());
    } catch (const std::runtime_error& error) {
        checked.writeFailure = error.what();
    }
    return checked;
}

} // namespace zu::cli
