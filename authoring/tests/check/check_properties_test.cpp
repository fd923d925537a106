#include "support/files.hpp"
#include "support/generated_documents.hpp"
#include "support/property.hpp"
#include "support/read_as.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace zu::authoring {

using test::readAs;

namespace {

/// A manifest with faults of every kind.
std::string faultyManifest()
{
    static const std::string example = test::readFile(test::examplePackages().back() / "manifest.xml");
    const std::string bytes = *rc::gen::arbitrary<bool>() ? test::anyDocument() : example;
    return *rc::gen::arbitrary<bool>() ? bytes : test::mutatedDocument(bytes);
}

void expectWithin(const SourceRange& range, const SourceDocument& document)
{
    RC_ASSERT(range.bytes.begin <= range.bytes.end);
    RC_ASSERT(range.bytes.end <= document.text().size());
    RC_ASSERT(range.begin == document.place(range.bytes.begin));
    RC_ASSERT(range.path.empty() || document.find(range.path) || document.findAttribute(range.path));
}

/// The document after all fixes that are safe, and after those that they uncover.
std::string fixedText(const SourceDocument& document, std::set<std::string>& rules)
{
    std::string text = document.text();
    for (int round = 0; round < 20; ++round) {
        const SourceDocument current = SourceDocument::parse(text);
        const std::vector<Diagnostic> findings = check(current).findings;
        std::vector<std::size_t> applied;
        std::string next = applyFixes(current, findings, false, &applied);
        for (const std::size_t index : applied)
            rules.insert(findings[index].rule);
        if (next == text)
            return text;
        text = std::move(next);
    }
    RC_FAIL("fixing does not come to an end: " + text);
}

} // namespace

TEST(CheckProperties, FindingsOfAnyDocumentLieInIt)
{
    test::checkProperty(300, [] {
        const SourceDocument document = SourceDocument::parse(faultyManifest());
        const CheckReport report = check(document);
        std::size_t last = 0;
        for (const Diagnostic& finding : report.findings) {
            expectWithin(finding.range, document);
            for (const RelatedPlace& related : finding.related)
                expectWithin(related.range, document);
            RC_ASSERT(last <= finding.range.bytes.begin);
            last = finding.range.bytes.begin;
            if (finding.fix)
                RC_ASSERT(applyEdits(document, finding.fix->edits).has_value());
        }
        RC_ASSERT(document.isWellFormed() || !report.findings.empty());
    });
}

TEST(CheckProperties, SafeFixesLeaveThePackageAsItReads)
{
    test::checkProperty(300, [] {
        const SourceDocument document = SourceDocument::parse(faultyManifest());
        std::set<std::string> rules;
        const std::string fixed = fixedText(document, rules);
        // These make of the package what was meant.
        const bool isChanged = rules.count("wide-reference") + rules.count("invalid-flag") > 0;
        if (!isChanged && readAs(fixed) != readAs(document.text()))
            RC_FAIL(document.text() + "\nbecame\n" + fixed + "\nby " + testing::PrintToString(rules));
    });
}

} // namespace zu::authoring
