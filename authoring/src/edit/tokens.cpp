#include "edit/tokens.hpp"

#include "characters.hpp"
#include "reference.hpp"

#include <algorithm>

namespace zupackage::edit {

namespace {

using authoring::Reference;
using authoring::ReferenceKind;

class Tokenizer
{
public:
    Tokenizer(std::string_view source, References references) : m_source(source), m_references(references) {}

    Tokens run()
    {
        while (m_at < m_source.size()) {
            take();
            m_tokens.ends.push_back({m_at, m_tokens.value.size()});
        }
        return std::move(m_tokens);
    }

private:
    void take()
    {
        if (m_source[m_at] == '&' && m_references == References::Resolved)
            takeReference();
        else
            takeCharacter();
    }

    void takeReference()
    {
        const Reference reference = authoring::referenceAt(m_at, m_source);
        if (reference.kind == ReferenceKind::Character)
            authoring::appendUtf8(reference.codePoint, m_tokens.value);
        else
            m_tokens.value += m_source.substr(m_at, reference.end - m_at);
        m_at = reference.end;
    }

    void takeCharacter()
    {
        const std::size_t size = authoring::characterAt(m_at, m_source).size;
        m_tokens.value += m_source.substr(m_at, size);
        m_at += size;
    }

    std::string_view m_source;
    References m_references;
    std::size_t m_at = 0;
    Tokens m_tokens;
};

} // namespace

Tokens tokensOf(std::string_view source, References references) { return Tokenizer(source, references).run(); }

Difference differenceOf(const Tokens& tokens, std::string_view value)
{
    const std::string_view old = tokens.value;
    const auto endAt = [&](std::size_t count) { return count == 0 ? Token{0, 0} : tokens.ends[count - 1]; };
    std::size_t first = 0;
    while (first < tokens.ends.size()) {
        const std::size_t begin = endAt(first).valueEnd;
        const std::size_t end = tokens.ends[first].valueEnd;
        if (value.substr(std::min(begin, value.size()), end - begin) != old.substr(begin, end - begin))
            break;
        ++first;
    }
    const std::size_t same = endAt(first).valueEnd;
    std::size_t last = tokens.ends.size();
    std::size_t valueEnd = value.size();
    while (last > first) {
        const std::size_t begin = endAt(last - 1).valueEnd;
        const std::size_t size = endAt(last).valueEnd - begin;
        if (valueEnd - same < size || value.substr(valueEnd - size, size) != old.substr(begin, size))
            break;
        valueEnd -= size;
        --last;
    }
    return {endAt(first).sourceEnd, endAt(last).sourceEnd, same, valueEnd};
}

} // namespace zupackage::edit
