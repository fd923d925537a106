#include "check/outline.hpp"
#include "package/element_merge.hpp"
#include "special_entries.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/package_merge.hpp>

#include <map>

namespace zu::authoring {

namespace {

using namespace zupackage::authoring;

PackageElement elementIn(const std::string& manifest)
{
    PackageInfo package;
    ManifestSyntaxError error;
    if (!manifest.empty() && !readManifest(manifest, package, &error))
        throw ManifestEditError(error.message,
                                {static_cast<std::size_t>(error.line), static_cast<std::size_t>(error.column)});
    return elementOf(package);
}

bool isOutsidePackage(SourceNode node, const zupackage::check::Outline& outline)
{
    if (node.kind() == NodeKind::Comment || node.kind() == NodeKind::ProcessingInstruction)
        return true;
    if (!node.isElement())
        return false;
    if (const ElementEntry* const entry = outline.entry(node))
        return isWebContent(*entry);
    const ElementEntry* const parent = outline.entry(node.parent());
    return !parent || !parent->countsEveryChild;
}

/// How often each text stands in a manifest that is no part of its package, in alphabetical order.
std::map<std::string, int> textsOutsidePackage(const std::string& manifest)
{
    const SourceDocument document = SourceDocument::parse(manifest);
    const zupackage::check::Outline outline(document);
    std::map<std::string, int> texts;
    std::size_t toldEnd = 0; // of the last node that was told, with all that stands in it
    for (std::size_t i = 0; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        if (node.range().begin < toldEnd)
            continue;
        if (isOutsidePackage(node, outline)) {
            ++texts[std::string(document.source(node.range()))];
            toldEnd = node.range().end;
            continue;
        }
        const ElementEntry* const entry = outline.entry(node);
        for (const SourceAttribute attribute : node.attributes()) {
            if (entry && !entry->attribute(attribute.name()))
                ++texts[std::string(document.source(attribute.range()))];
        }
    }
    return texts;
}

std::vector<UnmergedText> leftBehind(const std::string& base, const std::string& theirs, const std::string& merged)
{
    std::map<std::string, int> inBase = textsOutsidePackage(base);
    std::map<std::string, int> inTheirs = textsOutsidePackage(theirs);
    if (inBase == inTheirs)
        return {};
    std::map<std::string, int> inMerged = textsOutsidePackage(merged);
    std::vector<UnmergedText> texts;
    for (const auto& [text, count] : inBase) {
        if (inTheirs[text] < count && inMerged[text] > inTheirs[text])
            texts.push_back({text, true});
    }
    for (const auto& [text, count] : inTheirs) {
        if (inBase[text] < count && inMerged[text] < count)
            texts.push_back({text, false});
    }
    return texts;
}

} // namespace

PackageMerge mergePackages(const PackageInfo& base, const PackageInfo& ours, const PackageInfo& theirs)
{
    MergedElement merged = mergeElements(elementOf(base), elementOf(ours), elementOf(theirs));
    const PackageInfo result = packageOf(merged.ours);
    return {result, merged.conflicts.empty() ? result : packageOf(merged.theirs), std::move(merged.conflicts)};
}

ManifestMerge mergeManifests(const std::string& base, const std::string& ours, const std::string& theirs)
{
    ManifestEditor editor(SourceDocument::parse(ours));
    const PackageElement ourElement = elementOf(editor.package());
    MergedElement merged = mergeElements(elementIn(base), ourElement, elementIn(theirs));
    ManifestMerge result;
    if (merged.ours != ourElement)
        editor.update(packageOf(merged.ours));
    result.ours = editor.document().text();
    result.leftBehind = leftBehind(base, theirs, result.ours);
    if (!merged.conflicts.empty())
        editor.update(packageOf(merged.theirs));
    result.theirs = editor.document().text();
    result.conflicts = std::move(merged.conflicts);
    return result;
}

} // namespace zu::authoring
