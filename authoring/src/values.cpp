#include "values.hpp"

#include "characters.hpp"
#include "entities.hpp"

namespace zupackage::authoring {

namespace {

/// Behind the line end that the carriage return at `at` begins.
std::size_t afterLineEnd(std::size_t at, std::string_view source)
{
    return at + 1 < source.size() && source[at + 1] == '\n' ? at + 2 : at + 1;
}

} // namespace

void appendReference(const Reference& reference, std::string_view source, std::string& value)
{
    switch (reference.kind) {
    case ReferenceKind::Broken:
    case ReferenceKind::Entity:
        value += source;
        break;
    case ReferenceKind::Character:
        appendUtf8(reference.codePoint, value);
        break;
    case ReferenceKind::Forbidden:
        value += k_replacementCharacter;
        break;
    }
}

void appendLines(std::string_view source, std::string& value)
{
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t end = std::min(source.find('\r', at), source.size());
        value += source.substr(at, end - at);
        at = end;
        if (at < source.size()) {
            value += '\n';
            at = afterLineEnd(at, source);
        }
    }
}

void appendText(std::string_view source, std::string& value)
{
    for (std::size_t at = 0; at < source.size();) {
        const std::size_t end = std::min(source.find('&', at), source.size());
        appendLines(source.substr(at, end - at), value);
        at = end;
        if (at < source.size()) {
            const Reference reference = referenceAt(at, source);
            appendReference(reference, source.substr(at, reference.end - at), value);
            at = reference.end;
        }
    }
}

bool appendAttribute(std::string_view source, Entities& entities, std::string& value)
{
    bool isText = true;
    for (std::size_t at = 0; at < source.size();) {
        const char c = source[at];
        if (c == '&') {
            const Reference reference = referenceAt(at, source);
            const std::string_view written = source.substr(at, reference.end - at);
            if (reference.kind != ReferenceKind::Entity)
                appendReference(reference, written, value);
            else if (entities.isDeclared(reference.name))
                isText = entities.expand(reference.name, true, value) && isText;
            else
                value += written;
            at = reference.end;
        } else {
            value += isOf(Blank, c) ? ' ' : c;
            at = c == '\r' ? afterLineEnd(at, source) : at + 1;
        }
    }
    return isText;
}

} // namespace zupackage::authoring
