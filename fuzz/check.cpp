// Any bytes, checked: findings lie in the document, fixes can be made and come to an end, and safe ones leave the
// package as it reads.
#include "target.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/package_info.hpp>

#include <algorithm>
#include <optional>

namespace {

using zu::authoring::Diagnostic;
using zu::authoring::SourceDocument;

/// The package that is read, as it is written; nothing when the document is refused.
std::optional<std::string> readAs(const std::string& bytes)
{
    zu::PackageInfo package;
    return zu::readManifest(bytes, package) ? std::optional(package.saveToManifestContent()) : std::nullopt;
}

bool endsWith(std::string_view text, std::string_view end)
{
    return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

/// Whether the finding tells rightly what the reader makes of the document.
bool tellsTheTruth(const Diagnostic& finding, bool isRead)
{
    return finding.rule != "not-well-formed" ||
           endsWith(finding.message, isRead ? "; the robot overlooks it and reads the manifest all the same"
                                            : "; the robot refuses the whole manifest");
}

/// These make of the package what was meant.
bool changesThePackage(const Diagnostic& finding)
{
    return finding.fix && (finding.rule == "wide-reference" || finding.rule == "invalid-flag");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    constexpr int k_mostRounds = 20;
    const std::string bytes(fuzz::textOf(data, size));
    const std::optional<std::string> reading = readAs(bytes);
    std::string text = bytes;
    std::optional<std::string> fixedReading = reading;
    bool isChanged = false;
    for (int round = 0;; ++round) {
        fuzz::require(round < k_mostRounds, "fixing does not come to an end: " + text);
        const SourceDocument document = SourceDocument::parse(text);
        const std::vector<Diagnostic> findings = check(document).findings;
        fuzz::require(document.isWellFormed() || !findings.empty(), "an error is not found: " + text);
        for (const Diagnostic& finding : findings) {
            fuzz::require(finding.range.bytes.end <= text.size(), finding.rule + " lies outside: " + text);
            fuzz::require(tellsTheTruth(finding, fixedReading.has_value()), finding.message + ": " + text);
            fuzz::require(!finding.fix || applyEdits(document, finding.fix->edits), finding.rule + " fixes: " + text);
        }
        isChanged = isChanged || std::any_of(findings.begin(), findings.end(), &changesThePackage);
        std::string fixed = applyFixes(document, findings, false);
        if (fixed == text)
            break;
        text = std::move(fixed);
        fixedReading = readAs(text);
    }
    fuzz::require(isChanged || fixedReading == reading, "reads otherwise: " + bytes + text);
    return 0;
}
