#include "support/well_formed_documents.hpp"

#include "support/choices.hpp"

#include <QtCore/QString>

#include <rapidcheck.h>
#include <vector>

namespace zu::test {

namespace {

const Choices k_blanks = {" ", "  ", "\n", "\t", "\r\n", "\r"};
const Choices k_noOrSomeBlanks = {"", "", "", " ", "\n\t", "\r"};
const Choices k_names = {"p", "names", "y:name", "n\xc3\xa9", "a-1.b_", "_"};
const Choices k_attributes = {"lang", "y:lang", "xml:lang", "n\xc3\xa9", "xmlns", "xmlns:z"};
const Choices k_pieces = {
    "a",     " ",    "\n",   "\r\n",  "\r",        "\t",    "\xc3\xa9", "\xe2\x82\xac", "\xf0\x9f\xa4\x96", "]]", ">",
    "&amp;", "&lt;", "&gt;", "&#13;", "&#x1F916;", "&#10;", "&apos;",   "\xef\xbf\xbd", "\xc2\xa0",         "-",  "?"};

std::string text()
{
    std::string text;
    for (int count = upTo(4); count > 0; --count)
        text += oneOf(k_pieces);
    for (std::size_t at = text.find("]]>"); at != std::string::npos; at = text.find("]]>"))
        text.erase(at + 2, 1);
    return text;
}

std::string attributes()
{
    std::string attributes;
    for (const std::string& name : k_attributes) {
        if (upTo(3) > 0)
            continue;
        const std::string quote = oneOf({"'", "\""});
        const std::string other = quote == "'" ? "\"" : "'";
        attributes += oneOf(k_blanks) + name + oneOf(k_noOrSomeBlanks) + '=' + oneOf(k_noOrSomeBlanks) + quote +
                      (name == "xmlns:z" ? "uri" : text() + oneOf({"", other})) + quote;
    }
    return attributes;
}

std::string misc() { return oneOf({"<!---->", "<!-- a\r\nb - c -->", "<?i?>", "<?i  a\r?b ?>", "<?xml-i \xc3\xa9?>"}); }

std::string content(int levels);

std::string element(const std::string& name, const std::string& moreAttributes, int levels)
{
    const std::string start = '<' + name + attributes() + moreAttributes + oneOf(k_noOrSomeBlanks);
    if (upTo(4) == 0)
        return start + "/>";
    return start + '>' + content(levels) + "</" + name + oneOf(k_noOrSomeBlanks) + '>';
}

std::string node(int levels)
{
    switch (upTo(5)) {
    case 0:
        return misc();
    case 1:
        return "<![CDATA[" + oneOf({"", "a<b&amp;c\r\n", "]", "]]", "\xc3\xa9>"}) + "]]>";
    case 2:
    case 3:
        return text();
    default:
        return levels == 0 ? text() : element(oneOf(k_names), "", levels - 1);
    }
}

std::string content(int levels)
{
    std::string content;
    for (int count = upTo(4); count > 0; --count) {
        const std::string next = node(levels);
        // Two texts must not meet in the end of a CDATA section.
        content += !content.empty() && content.back() == ']' && next.substr(0, 1) != "<" ? "<!---->" + next : next;
    }
    return content;
}

} // namespace

std::string wellFormedDocument()
{
    std::string prolog;
    for (int count = upTo(2); count > 0; --count)
        prolog += misc() + oneOf(k_noOrSomeBlanks);
    return prolog + element("p", " xmlns:y='u'", 4) + oneOf(k_noOrSomeBlanks) + oneOf({"", misc()});
}

std::string withoutBeyondLatin1(const std::string& utf8)
{
    QString text;
    for (const QChar c : QString::fromStdString(utf8))
        if (c.unicode() <= 0xFF)
            text += c;
    return text.toStdString();
}

} // namespace zu::test
