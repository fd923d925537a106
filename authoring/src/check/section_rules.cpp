#include "check/findings.hpp"
#include "check/repetition.hpp"
#include "check/wording.hpp"
#include "edits.hpp"
#include "special_entries.hpp"

#include <map>

namespace zupackage::check {

namespace {

using authoring::isWebContent;
using zu::authoring::ExampleFrame;
using zu::authoring::Occurrence;
using zu::authoring::Severity;

bool isSection(const ElementEntry& entry)
{
    return entry.occurrence != Occurrence::Repeated && !entry.children.empty() && entry.parent;
}

/// Calls `visit(first, next)` for each element that stands in its parent again although it should not.
template <typename Visit>
void forEachRepeated(const Outline& outline, Visit visit)
{
    std::map<std::pair<std::size_t, const ElementEntry*>, SourceNode> seen;
    for (const SourceNode element : outline.elements()) {
        const ElementEntry& entry = *outline.entry(element);
        if (entry.occurrence == Occurrence::Repeated)
            continue;
        const auto [place, isNew] = seen.try_emplace({element.parent().index(), &entry}, element);
        if (!isNew)
            visit(place->second, element, entry);
    }
}

void findRepeatedSections(const Checked& checked, Findings& findings)
{
    forEachRepeated(checked.outline, [&](SourceNode first, SourceNode next, const ElementEntry& entry) {
        if (isSection(entry))
            findings
                .at(next,
                    "a second " + inQuotes(entry.name) + ": some readers add it to the first, others drop the first")
                .see("the first one", first);
    });
}

bool isPermission(const ElementEntry& entry) { return entry.parent && entry.parent->name == "permissions"; }

void findRepeatedElements(const Checked& checked, Findings& findings)
{
    forEachRepeated(checked.outline, [&](SourceNode first, SourceNode next, const ElementEntry& entry) {
        if (isSection(entry) || isPermission(entry) || isWebContent(entry))
            return;
        const bool isFlag = entry.name == "userRequestable";
        Finding& finding = isFlag ? findings.at(next, "a second " + inQuotes(entry.name) + ", which changes nothing")
                                  : findings.at(first, "a later " + inQuotes(entry.name) + " takes its place");
        finding.see(isFlag ? "the first one" : "the later one", isFlag ? first : next)
            .safeFix("remove it", {authoring::removal(checked.document, isFlag ? next : first)});
    });
}

void findRepeatedPermissions(const Checked& checked, Findings& findings)
{
    forEachRepeated(checked.outline, [&](SourceNode first, SourceNode next, const ElementEntry& entry) {
        if (isPermission(entry))
            reportPair(checked, findings, first, next, Fate::FirstCounts,
                       "the permission " + inQuotes(entry.name) + " stands here twice");
    });
}

void findRepeatedWebContents(const Checked& checked, Findings& findings)
{
    SourceNode earlier;
    for (const SourceNode web : checked.outline.elements("/package/contents/webContent")) {
        if (earlier)
            reportPair(checked, findings, earlier, web, Fate::LastCounts, "a package has one \"webContent\"");
        earlier = web;
    }
}

} // namespace

const std::vector<RuleRow>& sectionRules()
{
    static const std::vector<RuleRow> rules = {
        {{"repeated-section", Severity::Error, "A section stands twice",
          "One reader adds the second section to the first, another one forgets the first: the same manifest is two "
          "packages. Put all entries into one.",
          ExampleFrame::Package,
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>"
          "<executableFiles><file path=\"bin/bell\"/></executableFiles>",
          "<executableFiles><file path=\"bin/clock\"/><file path=\"bin/bell\"/></executableFiles>", ""},
         findRepeatedSections},
        {{"repeated-element", Severity::Warning, "An element stands twice where one counts",
          "Of two natures, engines or locales the later one counts, and a second userRequestable changes nothing. The "
          "fix removes what does not count.",
          ExampleFrame::Contents,
          "<behaviorContent path=\"wave\"><nature>solitary</nature><nature>interactive</nature></behaviorContent>",
          "<behaviorContent path=\"wave\"><nature>interactive</nature></behaviorContent>", ""},
         findRepeatedElements},
        {{"repeated-permission", Severity::Warning, "A permission stands twice",
          "A behavior has a permission or has it not. The fix removes the second one.", ExampleFrame::Behavior,
          "<permissions><canSitDown/><canSitDown/></permissions>", "<permissions><canSitDown/></permissions>", ""},
         findRepeatedPermissions},
        {{"repeated-web-content", Severity::Error, "A second webContent", "Readers forget the first one.",
          ExampleFrame::Contents, "<webContent path=\"web\"/><webContent path=\"pages\"/>",
          "<webContent path=\"pages\"/>", ""},
         findRepeatedWebContents},
    };
    return rules;
}

} // namespace zupackage::check
