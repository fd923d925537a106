#pragma once

#include <QtCore/QChar>

namespace zupackage::xml {

/// Follows how many attributes the tag has that is being read, because the parser reports them only when it has them
/// all. What stands in entities it does not see. Tags that are not well-formed may be miscounted: they end the
/// document.
class OpenTag
{
public:
    /// Characters beyond this one make no difference.
    static constexpr ushort k_lastThatMatters = '?';

    /// @return the number of attributes so far, at the character that follows those before.
    int attributesAt(QChar c)
    {
        const ushort u = c.unicode();
        switch (m_place) {
        case Place::Content:
            if (u == '<') {
                m_attributes = 0;
                m_place = Place::Tag;
            }
            break;
        case Place::Tag:
            if (u == '"' || u == '\'') {
                ++m_attributes;
                m_quote = u;
                m_place = Place::Value;
            } else if (u == '>') {
                m_place = Place::Content;
            } else if (u == '!' || u == '?') {
                m_place = Place::Other;
            }
            break;
        case Place::Value:
            if (u == m_quote)
                m_place = Place::Tag;
            break;
        case Place::Other:
            break;
        }
        return m_attributes;
    }

    /// A comment, an instruction or a CDATA section, which may look like tags within, was reported; the parser had read
    /// up to this character.
    void endOther(QChar c)
    {
        m_place = Place::Content;
        attributesAt(c);
    }

private:
    enum class Place
    {
        Content,
        Tag,
        Value, ///< of an attribute
        Other  ///< in a comment, an instruction, a CDATA section or a document type
    };

    Place m_place = Place::Content;
    ushort m_quote = 0;
    int m_attributes = 0;
};

} // namespace zupackage::xml
