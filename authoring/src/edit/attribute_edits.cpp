#include "edit/attribute_edits.hpp"

#include "characters.hpp"
#include "edits.hpp"

namespace zupackage::edit {

using zu::authoring::AttributeEntry;
using zu::authoring::ValueKind;

namespace {

bool isTrue(std::string_view flag) { return flag == "true" || flag == "1"; }

bool readAlike(std::string_view left, std::string_view right, ValueKind kind)
{
    return kind == ValueKind::Flag ? isTrue(left) == isTrue(right) : left == right;
}

/// The white space before an attribute.
std::string_view gapBefore(const SourceDocument& document, SourceAttribute attribute)
{
    const std::string_view tag = document.source({attribute.owner().startTagRange().begin, attribute.range().begin});
    std::size_t begin = tag.size();
    while (begin > 0 && authoring::isOf(authoring::Blank, tag[begin - 1]))
        --begin;
    return tag.substr(begin);
}

std::string sourceOf(std::string_view name, std::string_view value, char quote)
{
    return std::string(name) + '=' + quote + authoring::escapedValue(value, quote) + quote;
}

/// The last attribute of the element that the vocabulary names before that one.
SourceAttribute predecessor(SourceNode node, const AttributeEntry& wanted, const ElementEntry& entry)
{
    SourceAttribute result;
    for (const AttributeEntry& known : entry.attributes) {
        if (&known == &wanted)
            break;
        if (const SourceAttribute attribute = plainAttribute(node, known.name))
            result = attribute;
    }
    return result;
}

TextEdit insertion(const SourceDocument& document, SourceNode node, const AttributeEntry& wanted,
                   std::string_view value, const ElementEntry& entry)
{
    if (const SourceAttribute before = predecessor(node, wanted, entry)) {
        const std::size_t end = before.range().end;
        return {{end, end}, std::string(gapBefore(document, before)) + sourceOf(wanted.name, value, before.quote())};
    }
    const std::size_t end = node.nameRange().end;
    if (node.attributes().isEmpty())
        return {{end, end}, ' ' + sourceOf(wanted.name, value, '"')};
    const SourceAttribute next = node.attributes()[0];
    return {{end, end}, std::string(gapBefore(document, next)) + sourceOf(wanted.name, value, next.quote())};
}

} // namespace

void setAttributes(const SourceDocument& document, SourceNode node, SourceNode target, const ElementEntry& entry,
                   Edits& edits)
{
    for (const AttributeEntry& known : entry.attributes) {
        const SourceAttribute there = plainAttribute(node, known.name);
        const SourceAttribute wanted = plainAttribute(target, known.name);
        const std::string value = readAttribute(target, known.name);
        if (readAlike(readAttribute(node, known.name), value, known.kind))
            continue;
        if (there && wanted)
            setValue(document, there, value, edits);
        else if (there)
            edits.push_back(authoring::removal(document, there));
        else
            edits.push_back(insertion(document, node, known, value, entry));
    }
}

} // namespace zupackage::edit
