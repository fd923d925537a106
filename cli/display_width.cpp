#include "display_width.hpp"

#include <QtCore/QString>

#include <vector>

namespace zu::cli {

namespace {

std::size_t lengthOfCharacter(std::string_view text)
{
    std::size_t length = 1;
    while (length < text.size() && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
        ++length;
    return length;
}

char32_t codePointOf(std::string_view character)
{
    auto codePoint = static_cast<char32_t>(static_cast<unsigned char>(character[0]));
    if (character.size() > 1)
        codePoint &= 0x7FU >> character.size();
    for (std::size_t i = 1; i < character.size(); ++i)
        codePoint = codePoint << 6U | (static_cast<unsigned char>(character[i]) & 0x3FU);
    return codePoint;
}

/// What a terminal takes for a command, or for an order to write in the other direction.
bool steersTerminal(char32_t c)
{
    return c < 0x20 || (c >= 0x7F && c < 0xA0) || (c >= 0x200E && c <= 0x200F) || (c >= 0x2028 && c <= 0x202E) ||
           (c >= 0x2066 && c <= 0x2069);
}

/// The scripts whose characters take two columns.
bool isWide(char32_t c)
{
    return (c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0xA4CF) || (c >= 0xAC00 && c <= 0xD7A3) ||
           (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE6F) || (c >= 0xFF00 && c <= 0xFF60) ||
           (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1F64F) || (c >= 0x20000 && c <= 0x3FFFD);
}

/// Characters that stand on the one before.
bool isCombining(char32_t c)
{
    return (c >= 0x0300 && c <= 0x036F) || (c >= 0x3099 && c <= 0x309A) || c == 0x200B || c == 0x200D ||
           (c >= 0xFE00 && c <= 0xFE0F);
}

} // namespace

DisplayedCharacter takeCharacter(std::string_view& text)
{
    const std::string_view bytes = text.substr(0, lengthOfCharacter(text));
    text.remove_prefix(bytes.size());
    const char32_t codePoint = codePointOf(bytes);
    if (codePoint == '\t')
        return {" ", 1};
    if (steersTerminal(codePoint))
        return {"\xEF\xBF\xBD", 1};
    return {bytes, isWide(codePoint) ? 2U : isCombining(codePoint) ? 0U : 1U};
}

std::string displayed(std::string_view text)
{
    const std::string valid = QString::fromUtf8(text.data(), static_cast<int>(text.size())).toStdString();
    std::string result;
    for (std::string_view rest = valid; !rest.empty();)
        result += takeCharacter(rest).bytes;
    return result;
}

std::size_t displayWidth(std::string_view text)
{
    std::size_t width = 0;
    while (!text.empty())
        width += takeCharacter(text).width;
    return width;
}

std::string shortened(std::string_view text, std::size_t width)
{
    const std::string whole = displayed(text);
    if (displayWidth(whole) <= width)
        return whole;
    std::vector<DisplayedCharacter> characters;
    for (std::string_view rest = whole; !rest.empty();)
        characters.push_back(takeCharacter(rest));

    const std::size_t room = width - 1; // beside the "…"
    std::string front;
    std::size_t used = 0;
    for (auto c = characters.begin(); used + c->width <= room / 2; ++c) {
        front += c->bytes;
        used += c->width;
    }
    auto firstOfBack = characters.end();
    while (used + (firstOfBack - 1)->width <= room)
        used += (--firstOfBack)->width;
    std::string back;
    for (auto c = firstOfBack; c != characters.end(); ++c)
        back += c->bytes;
    return front + "…" + back;
}

} // namespace zu::cli
