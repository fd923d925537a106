#include "support/property.hpp"
#include "support/well_formed_documents.hpp"

#include <zupackage/authoring/path_edit.hpp>

#include <gtest/gtest.h>

namespace zu::authoring {

namespace {

const std::vector<std::string> k_texts = {
    "", "a", " ", "\n", "\r", "\t", "a\r\nb", "<&>'\"", "]]>", "\xc3\xa9\xf0\x9f\xa4\x96", "&amp;"};

/// The path of some element that holds no other, or of some attribute.
std::string somePath(const SourceDocument& document)
{
    std::vector<std::string> paths;
    for (std::size_t i = 0; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        bool isLeaf = node.isElement();
        for (const SourceNode child : node.children())
            isLeaf = isLeaf && !child.isElement();
        if (isLeaf)
            paths.push_back(node.path());
        for (const SourceAttribute attribute : node.attributes()) {
            if (node.isElement() && attribute.name() != "xmlns" && attribute.prefix() != "xmlns")
                paths.push_back(attribute.path());
        }
    }
    return *rc::gen::elementOf(paths);
}

std::size_t commonPrefix(const std::string& left, const std::string& right)
{
    const auto end = std::mismatch(left.begin(), left.end(), right.begin(), right.end());
    return static_cast<std::size_t>(end.first - left.begin());
}

} // namespace

TEST(PathEditProperties, WhatWasSetIsThereAndWhatStandsOutsideStays)
{
    test::checkProperty(10'000, [] {
        const SourceDocument document = SourceDocument::parse(test::wellFormedDocument());
        RC_PRE(document.isWellFormed());
        const ManifestPath path(somePath(document));
        const std::string text = *rc::gen::elementOf(k_texts);
        const SourceDocument result = edited(document, {SetText{path, text}}, VocabularyGuard::Waived);
        const std::vector<PathTarget> targets = select(result, path);
        RC_ASSERT(targets.size() == 1U);
        RC_ASSERT(targets.front().text() == text);

        const PathTarget before = select(document, path).front();
        const ByteRange range = before.attribute ? before.attribute.valueRange() : before.element.range();
        RC_ASSERT(commonPrefix(document.text(), result.text()) >= range.begin);
        const std::string behind = document.text().substr(range.end);
        RC_ASSERT(result.text().size() >= behind.size());
        RC_ASSERT(result.text().substr(result.text().size() - behind.size()) == behind);
        RC_ASSERT(edited(result, {SetText{path, text}}, VocabularyGuard::Waived).text() == result.text());
    });
}

TEST(PathEditProperties, WhatWasAddedIsThereOnceMore)
{
    test::checkProperty(10'000, [] {
        const SourceDocument document = SourceDocument::parse(test::wellFormedDocument());
        RC_PRE(document.isWellFormed());
        const ManifestPath path("names/name");
        const std::string text = *rc::gen::elementOf(k_texts);
        const AddEntry entry = {path, {{ManifestPath("@lang"), text}, {ManifestPath("."), text}}};
        const SourceDocument result = edited(document, {entry}, VocabularyGuard::Waived);
        std::size_t added = 0;
        for (const PathTarget& target : select(result, path))
            added += target.text() == text && target.element.attribute("lang").value() == text ? 1U : 0U;
        RC_ASSERT(added >= 1U);
        RC_ASSERT(select(result, path).size() > select(document, path).size());
    });
}

} // namespace zu::authoring
