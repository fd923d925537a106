#include "check/forbidden_characters.hpp"

#include "characters.hpp"
#include "reference.hpp"
#include "source_tree.hpp"

#include <algorithm>

namespace zupackage::check {

namespace {

using zu::authoring::ByteRange;
using zu::authoring::NodeKind;
using zu::authoring::SourceAttribute;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;
using zu::authoring::SyntaxError;
using zu::authoring::SyntaxErrorKind;
using zupackage::authoring::appendUtf8;
using zupackage::authoring::Reference;
using zupackage::authoring::referenceAt;
using zupackage::authoring::ReferenceKind;

/// Calls `visit(reference, range)` for each reference in a stretch of the document.
template <typename Visit>
void forEachReferenceIn(const SourceTree& tree, ByteRange stretch, Visit visit)
{
    const std::string_view text = tree.utf8();
    const std::size_t end = tree.toText(stretch.end);
    for (std::size_t at = text.find('&', tree.toText(stretch.begin)); at < end;) {
        const Reference reference = referenceAt(at, text);
        visit(reference, ByteRange{tree.toDocument(at), tree.toDocument(reference.end)});
        at = text.find('&', reference.end);
    }
}

/// Calls `visit(reference, range, node, attribute)` for each reference in the texts and attributes of the document.
template <typename Visit>
void forEachReference(const SourceDocument& document, Visit visit)
{
    const SourceTree& tree = SourceTreeAccess::tree(document);
    if (tree.utf8().find('&') == std::string_view::npos)
        return;
    for (std::size_t i = 1; i < document.nodeCount(); ++i) {
        const SourceNode node = document.node(i);
        if (node.kind() == NodeKind::Text)
            forEachReferenceIn(tree, node.range(), [&](const Reference& reference, ByteRange range) {
                visit(reference, range, node, SourceAttribute());
            });
        for (const SourceAttribute attribute : node.attributes())
            forEachReferenceIn(tree, attribute.valueRange(), [&](const Reference& reference, ByteRange range) {
                visit(reference, range, node, attribute);
            });
    }
}

/// U+FFFE and U+FFFF, the only ones outside ASCII that UTF-8 can hold.
bool isNoncharacter(std::string_view text, std::size_t at)
{
    return text.compare(at, 2, "\xEF\xBF") == 0 && at + 2 < text.size() &&
           static_cast<unsigned char>(text[at + 2]) >= 0xBE;
}

} // namespace

std::vector<ByteRange> forbiddenCharacters(const SourceDocument& document)
{
    std::vector<ByteRange> result;
    // A document beyond the limits is nothing that anybody reads.
    if (std::any_of(document.errors().begin(), document.errors().end(),
                    [](const SyntaxError& error) { return error.kind == SyntaxErrorKind::Limit; }))
        return result;
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::string_view text = tree.utf8();
    for (std::size_t at = 0; at < text.size(); ++at) {
        const auto byte = static_cast<unsigned char>(text[at]);
        if (byte < 0x20 ? byte != '\t' && byte != '\n' && byte != '\r' : byte == 0xEF && isNoncharacter(text, at))
            result.push_back({tree.toDocument(at), tree.toDocument(at + (byte == 0xEF ? 3 : 1))});
    }
    forEachReference(document, [&](const Reference& reference, ByteRange range, SourceNode, SourceAttribute) {
        if (reference.kind == ReferenceKind::Forbidden)
            result.push_back(range);
    });
    std::sort(result.begin(), result.end(), [](ByteRange left, ByteRange right) { return left.begin < right.begin; });
    return result;
}

std::vector<WideReference> wideReferences(const SourceDocument& document)
{
    constexpr char32_t k_firstBeyondBasicPlane = 0x10000;
    std::vector<WideReference> result;
    forEachReference(
        document, [&](const Reference& reference, ByteRange range, SourceNode node, SourceAttribute attribute) {
            if (reference.kind != ReferenceKind::Character || reference.codePoint < k_firstBeyondBasicPlane)
                return;
            WideReference& wide = result.emplace_back();
            wide.range = range;
            wide.node = node;
            wide.attribute = attribute.name();
            appendUtf8(reference.codePoint, wide.character);
        });
    return result;
}

} // namespace zupackage::check
