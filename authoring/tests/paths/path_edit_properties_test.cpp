#include "support/generated_packages.hpp"
#include "support/odd_manifests.hpp"
#include "support/property.hpp"
#include "support/well_formed_documents.hpp"

#include <zupackage/authoring/path_edit.hpp>
#include <zupackage/package_info.hpp>

#include <gtest/gtest.h>

#include <algorithm>
#include <iostream>

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

/// The document that the library writes of what it reads.
SourceDocument writtenAsRead(const SourceDocument& document)
{
    PackageInfo package;
    RC_ASSERT(readManifest(document.text(), package));
    return SourceDocument::parse(package.saveToManifestContent());
}

/// A path to a text that packages have or could have, by what identifies the entries on its way.
std::string someTextOfPackage(const SourceDocument& written)
{
    std::vector<std::string> owners = {""};
    for (const PathTarget& path : select(written, ManifestPath("contents/behaviorContent/@path"))) {
        if (path.text().find('\'') == std::string::npos)
            owners.push_back("contents/behaviorContent[@path='" + path.text() + "']/");
    }
    const std::string owner = *rc::gen::elementOf(owners);
    std::vector<std::string> ends = {"names/name[@lang='en']", "descriptions/description[@lang='fr']"};
    if (owner.empty())
        ends.insert(ends.end(), {"@author", "services/service[@name='clock']/@execStart"});
    return owner + *rc::gen::elementOf(ends);
}

/// Whether the guard lets a text be set; the package that is read says it then.
bool isSetAndRead(SourceDocument& document, const std::string& path, const std::string& text)
{
    try {
        document = edited(document, {SetText{ManifestPath(path), text}});
    } catch (const PathEditError& error) {
        RC_ASSERT(error.reason() == PathEditError::Reason::Refused);
        return false;
    }
    const SourceDocument written = writtenAsRead(document);
    const std::vector<PathTarget> targets = select(written, ManifestPath(path));
    // The writer gives white space alone as it is, though readers drop it there.
    const bool isRead = std::any_of(targets.begin(), targets.end(), [&](const PathTarget& target) {
        return (target.attribute ? target.text() : target.element.textContent()) == text;
    });
    if (!isRead && !text.empty())
        RC_FAIL(path + " is not \"" + text + "\" in\n" + document.text());
    return true;
}

} // namespace

TEST(PathEditProperties, WhatWasSetIsThereAndWhatStandsOutsideStays)
{
    test::checkProperty(test::k_inputs, [] {
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
    test::checkProperty(test::k_inputs, [] {
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

TEST(PathEditProperties, WhatWasSetUnderTheGuardIsWhatThePackageSays)
{
    constexpr int k_editsEach = 20;
    int refused = 0;
    const int count = test::checkProperty(test::k_inputs / k_editsEach, [&refused] {
        SourceDocument document = SourceDocument::parse(test::oddManifest(*test::packages(test::texts())));
        RC_PRE(document.isWellFormed());
        const SourceDocument written = writtenAsRead(document);
        for (int i = 0; i < k_editsEach; ++i)
            refused += isSetAndRead(document, someTextOfPackage(written), *rc::gen::elementOf(k_texts)) ? 0 : 1;
    });
    std::cout << refused << " edits refused\n";
    EXPECT_LT(refused, count * k_editsEach / 2);
}

} // namespace zu::authoring
