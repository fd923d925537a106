#include "check/findings.hpp"

namespace zupackage::check {

using zu::authoring::Fix;

Finding& Finding::see(std::string why, SourceNode other)
{
    related.emplace_back(std::move(why), other);
    return *this;
}

Finding& Finding::safeFix(std::string title, std::vector<TextEdit> edits)
{
    fix = Fix{std::move(title), true, std::move(edits)};
    return *this;
}

Finding& Finding::unsafeFix(std::string title, std::vector<TextEdit> edits)
{
    fix = Fix{std::move(title), false, std::move(edits)};
    return *this;
}

void Findings::beginRule(const zu::authoring::Rule& rule)
{
    m_rule = &rule;
    m_foundBefore = m_found.size();
}

bool Findings::omit()
{
    if (!isFull())
        return false;
    ++m_omitted;
    return true;
}

Finding& Findings::at(ByteRange range, SourceNode node, std::string message)
{
    Finding* const finding = omit() ? &m_discarded : &m_found.emplace_back();
    *finding = Finding{};
    finding->rule = m_rule;
    finding->range = range;
    finding->node = node;
    finding->message = std::move(message);
    return *finding;
}

Finding& Findings::at(SourceNode element, std::string message)
{
    return at(element.startTagRange(), element, std::move(message));
}

Finding& Findings::atWhole(SourceNode node, std::string message) { return at(node.range(), node, std::move(message)); }

Finding& Findings::atContent(SourceNode element, std::string message)
{
    const ByteRange content = element.contentRange();
    return at(content.isEmpty() ? element.startTagRange() : content, element, std::move(message));
}

Finding& Findings::at(SourceAttribute attribute, std::string message)
{
    const ByteRange value = attribute.valueRange();
    Finding& finding = at(value.isEmpty() ? attribute.range() : value, attribute.owner(), std::move(message));
    finding.attribute = attribute.name();
    return finding;
}

Finding& Findings::atName(SourceAttribute attribute, std::string message)
{
    Finding& finding = at(attribute.nameRange(), attribute.owner(), std::move(message));
    finding.attribute = attribute.name();
    return finding;
}

} // namespace zupackage::check
