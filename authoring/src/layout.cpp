#include "layout.hpp"

#include "characters.hpp"
#include "source_tree.hpp"

namespace zupackage::authoring {

using zu::authoring::NodeKind;
using zu::authoring::SourceDocument;
using zu::authoring::SourceNode;
using zu::authoring::SourceTree;
using zu::authoring::SourceTreeAccess;

std::optional<std::string> indentationOf(const SourceDocument& document, SourceNode node)
{
    const SourceTree& tree = SourceTreeAccess::tree(document);
    const std::string_view text = tree.utf8();
    const std::size_t end = tree.toText(node.range().begin);
    std::size_t begin = end;
    while (begin > 0 && (text[begin - 1] == ' ' || text[begin - 1] == '\t'))
        --begin;
    const std::size_t markEnd = document.hasByteOrderMark() ? k_byteOrderMarkSize : 0;
    if (begin > markEnd && text[begin - 1] != '\n' && text[begin - 1] != '\r')
        return std::nullopt;
    return std::string(text.substr(begin, end - begin));
}

std::string indentationStep(const SourceDocument& document)
{
    const std::string outer = indentationOf(document, document.root()).value_or("");
    for (const SourceNode child : document.root().children()) {
        const auto inner = child.isElement() ? indentationOf(document, child) : std::nullopt;
        if (inner && inner->compare(0, outer.size(), outer) == 0)
            return inner->substr(outer.size());
    }
    return "  ";
}

bool isBlankText(const SourceDocument& document, SourceNode node)
{
    if (node.kind() != NodeKind::Text)
        return false;
    const std::string_view source = document.source(node.range());
    return afterBlanks(0, source) == source.size();
}

} // namespace zupackage::authoring
