#include "xml/content_model_groups.hpp"

#include <algorithm>

namespace zupackage::xml {

int ContentModelGroups::depthAt(QChar c)
{
    static constexpr char k_declaration[] = "<!ELEMENT";
    m_matched = c == QLatin1Char(k_declaration[m_matched]) ? m_matched + 1 : c == QLatin1Char('<') ? 1 : 0;
    if (k_declaration[m_matched] == '\0') {
        m_inDeclaration = true;
        m_matched = 0;
        m_depth = 0;
    } else if (c == QLatin1Char('>')) {
        m_inDeclaration = false;
        m_depth = 0;
    } else if (m_inDeclaration || m_everywhere) {
        m_depth += c == QLatin1Char('(') ? 1 : c == QLatin1Char(')') ? -1 : 0;
    }
    return m_depth;
}

int deepestGroup(const QString& text)
{
    ContentModelGroups groups;
    groups.countEverywhere();
    int deepest = 0;
    for (const QChar c : text)
        deepest = std::max(deepest, groups.depthAt(c));
    return deepest;
}

} // namespace zupackage::xml
