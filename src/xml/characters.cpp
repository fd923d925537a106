#include "xml/characters.hpp"

#include <algorithm>
#include <iterator>

namespace zupackage::xml {

namespace {

struct Range
{
    ushort first;
    ushort last;
};

// The ranges of the NameStartChar production up to the end of the basic plane, without the colon.
constexpr Range k_nameStart[] = {{'A', 'Z'},       {'_', '_'},       {'a', 'z'},       {0xC0, 0xD6},
                                 {0xD8, 0xF6},     {0xF8, 0x2FF},    {0x370, 0x37D},   {0x37F, 0x1FFF},
                                 {0x200C, 0x200D}, {0x2070, 0x218F}, {0x2C00, 0x2FEF}, {0x3001, 0xD7FF},
                                 {0xF900, 0xFDCF}, {0xFDF0, 0xFFFD}};
// What NameChar adds to them.
constexpr Range k_nameRest[] = {{'-', '.'}, {'0', '9'}, {0xB7, 0xB7}, {0x300, 0x36F}, {0x203F, 0x2040}};

template <std::size_t size>
bool isIn(const Range (&ranges)[size], QChar c)
{
    return std::any_of(std::begin(ranges), std::end(ranges),
                       [u = c.unicode()](Range range) { return range.first <= u && u <= range.last; });
}

// Qt's parser goes by Unicode categories; of the characters that both know, each rule has some that the other has not.
bool beginsNameInQt(QChar c) { return c.unicode() < 0x80 || c.isLetter() || c.category() == QChar::Number_Letter; }
bool continuesNameInQt(QChar c) { return beginsNameInQt(c) || c.isNumber() || c.isMark(); }

bool beginsName(QChar c) { return isIn(k_nameStart, c) && beginsNameInQt(c); }
bool continuesName(QChar c) { return (isIn(k_nameStart, c) || isIn(k_nameRest, c)) && continuesNameInQt(c); }

bool isForbidden(QChar c)
{
    const ushort u = c.unicode();
    return (u < 0x20 && u != '\t' && u != '\n' && u != '\r') || u >= 0xFFFE;
}

} // namespace

QString withoutForbiddenCharacters(QString text)
{
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        if (c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate())
            ++i;
        else if (c.isSurrogate() || isForbidden(c))
            text[i] = QChar::ReplacementCharacter;
    }
    return text;
}

bool isElementName(const QString& name)
{
    return !name.isEmpty() && beginsName(name.front()) && std::all_of(name.begin() + 1, name.end(), continuesName);
}

} // namespace zupackage::xml
