// Any bytes, checked: findings lie in the document, fixes can be made and come to an end, and safe ones leave the
// package as it reads.
#include "target.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/package_info.hpp>

#include <algorithm>

namespace {

using zu::authoring::Diagnostic;
using zu::authoring::SourceDocument;

constexpr const char* k_unreadable = "unreadable";

std::string readAs(const std::string& bytes)
{
    zu::PackageInfo package;
    return zu::readManifest(bytes, package) ? package.saveToManifestContent() : k_unreadable;
}

/// Whether the finding tells rightly what the reader makes of the document.
bool tellsTheTruth(const Diagnostic& finding, const std::string& bytes)
{
    if (finding.rule != "not-well-formed")
        return true;
    const bool saysRefused = finding.message.find("; the robot refuses the whole manifest") != std::string::npos;
    return saysRefused == (readAs(bytes) == k_unreadable);
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
    std::string text = bytes;
    bool isChanged = false;
    for (int round = 0;; ++round) {
        fuzz::require(round < k_mostRounds, "fixing does not come to an end: " + text);
        const SourceDocument document = SourceDocument::parse(text);
        const std::vector<Diagnostic> findings = check(document).findings;
        fuzz::require(document.isWellFormed() || !findings.empty(), "an error is not found: " + text);
        for (const Diagnostic& finding : findings) {
            fuzz::require(finding.range.bytes.end <= text.size(), finding.rule + " lies outside: " + text);
            fuzz::require(tellsTheTruth(finding, text), finding.message + ": " + text);
            fuzz::require(!finding.fix || applyEdits(document, finding.fix->edits), finding.rule + " fixes: " + text);
        }
        isChanged = isChanged || std::any_of(findings.begin(), findings.end(), &changesThePackage);
        std::string fixed = applyFixes(document, findings, false);
        if (fixed == text)
            break;
        text = std::move(fixed);
    }
    fuzz::require(isChanged || text == bytes || readAs(text) == readAs(bytes), "reads otherwise: " + bytes + text);
    return 0;
}
