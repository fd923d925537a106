#include "characters.hpp"
#include "decoding.hpp"

#include <zupackage/authoring/manifest_path.hpp>

#include <algorithm>
#include <charconv>

namespace zu::authoring {

namespace {

bool isContinuation(char c) { return (static_cast<unsigned char>(c) & 0xC0U) == 0x80U; }

/// Reads a path from the left to the right.
class PathParser
{
public:
    explicit PathParser(std::string_view text) : m_text(text) {}

    bool take(char c)
    {
        const bool isThere = m_at < m_text.size() && m_text[m_at] == c;
        m_at += isThere ? 1 : 0;
        return isThere;
    }

    bool isAtEnd() const { return m_at == m_text.size(); }
    std::size_t at() const { return m_at; }
    std::string textSince(std::size_t begin) const { return std::string(m_text.substr(begin, m_at - begin)); }

    void skipBlanks() { m_at = zupackage::authoring::afterBlanks(m_at, m_text); }

    std::string name(const char* what)
    {
        const std::size_t begin = m_at;
        m_at = zupackage::authoring::nameEnd(m_at, m_text);
        if (m_at == begin)
            fail(std::string("expected ") + what);
        return textSince(begin);
    }

    PathPredicate predicate();

    [[noreturn]] void fail(const std::string& message) const
    {
        const std::string_view before = m_text.substr(0, m_at);
        throw PathSyntaxError(
            message,
            before.size() + 1 - static_cast<std::size_t>(std::count_if(before.begin(), before.end(), isContinuation)));
    }

private:
    void expect(char c)
    {
        if (!take(c))
            fail(std::string("expected \"") + c + '"');
    }

    std::size_t position()
    {
        std::size_t number = 0;
        const char* const begin = m_text.data() + m_at;
        const auto result = std::from_chars(begin, m_text.data() + m_text.size(), number);
        if (result.ec != std::errc() || number == 0)
            fail("expected a position from 1 on");
        m_at += static_cast<std::size_t>(result.ptr - begin);
        return number;
    }

    std::string comparedText()
    {
        skipBlanks();
        expect('=');
        skipBlanks();
        const char quote = take('\'') ? '\'' : take('"') ? '"' : '\0';
        if (quote == '\0')
            fail("expected a text in quotes");
        const std::size_t begin = m_at;
        const std::size_t end = m_text.find(quote, begin);
        if (end == std::string_view::npos)
            fail("the text has no closing quote");
        m_at = end + 1;
        return std::string(m_text.substr(begin, end - begin));
    }

    std::string_view m_text;
    std::size_t m_at = 0;
};

PathPredicate PathParser::predicate()
{
    using Kind = PathPredicate::Kind;
    PathPredicate predicate{};
    skipBlanks();
    if (!isAtEnd() && m_text[m_at] >= '0' && m_text[m_at] <= '9') {
        predicate.kind = Kind::Position;
        predicate.position = position();
    } else {
        predicate.kind = take('@') ? Kind::Attribute : take('.') ? Kind::OwnText : Kind::Child;
        if (predicate.kind != Kind::OwnText)
            predicate.name = name(predicate.kind == Kind::Child ? "a position, an attribute, a child or \".\""
                                                                : "the name of an attribute");
        predicate.value = comparedText();
    }
    skipBlanks();
    expect(']');
    return predicate;
}

PathStep parsedStep(PathParser& parser)
{
    const std::size_t begin = parser.at();
    PathStep step;
    step.name =
        parser.take('*') ? "*" : parser.name("the name of an element, an attribute as \"@name\", \"*\" or \".\"");
    while (parser.take('['))
        step.predicates.push_back(parser.predicate());
    step.text = parser.textSince(begin);
    return step;
}

} // namespace

ManifestPath::ManifestPath(std::string_view text) : m_text(text)
{
    PathParser parser(m_text);
    if (zupackage::authoring::validUtf8End(m_text) != m_text.size())
        parser.fail("the path is no UTF-8");
    m_isAbsolute = parser.take('/');
    do {
        if (parser.take('@')) {
            if (m_isAbsolute && m_steps.empty())
                parser.fail("only elements have attributes");
            m_attribute = parser.name("the name of an attribute");
            break;
        }
        if ((m_isAbsolute && m_steps.empty()) || !parser.take('.'))
            m_steps.push_back(parsedStep(parser));
    } while (parser.take('/'));
    if (!parser.isAtEnd())
        parser.fail(m_attribute.empty() ? "expected \"/\", \"[\" or the end" : "nothing stands behind an attribute");
}

} // namespace zu::authoring
