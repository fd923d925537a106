#pragma once

#include <QtCore/QString>

namespace zupackage::xml {

/// Follows how deep the groups of a content model are nested, because the parser reports nothing from within one.
class ContentModelGroups
{
public:
    /// Takes every parenthesis for that of a group: a declaration can now begin where no text shows it.
    void countEverywhere() { m_everywhere = true; }

    /// @return how deep the groups are at the character that follows those before.
    int depthAt(QChar c);

private:
    bool m_everywhere = false;
    bool m_inDeclaration = false;
    int m_matched = 0; ///< characters of the declaration's beginning
    int m_depth = 0;
};

/// The greatest depth within a text that can become a declaration, or a part of one.
int deepestGroup(const QString& text);

} // namespace zupackage::xml
