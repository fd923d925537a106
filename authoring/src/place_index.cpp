#include "place_index.hpp"

#include "characters.hpp"

#include <algorithm>

namespace zupackage::authoring {

using zu::authoring::LineEnd;
using zu::authoring::Place;

namespace {

constexpr std::size_t k_distance = 1024;

bool isFollowedByLineFeed(std::size_t at, std::string_view utf8)
{
    return at + 1 < utf8.size() && utf8[at + 1] == '\n';
}

LineEnd mostFrequent(std::string_view utf8)
{
    std::size_t feeds = 0;
    std::size_t returns = 0;
    std::size_t both = 0;
    for (std::size_t at = utf8.find_first_of("\r\n"); at != std::string_view::npos;
         at = utf8.find_first_of("\r\n", at + 1)) {
        if (utf8[at] == '\n')
            ++feeds;
        else if (!isFollowedByLineFeed(at, utf8))
            ++returns;
        else {
            ++both;
            ++at;
        }
    }
    if (both > feeds && both >= returns)
        return LineEnd::CarriageReturnLineFeed;
    return returns > feeds ? LineEnd::CarriageReturn : LineEnd::LineFeed;
}

} // namespace

PlaceIndex::PlaceIndex(std::string_view utf8, std::size_t begin) : m_begin(begin)
{
    m_known.reserve((utf8.size() - begin) / k_distance + 1);
    Known place{1, 1};
    for (std::size_t at = begin; at < utf8.size(); ++at) {
        if ((at - begin) % k_distance == 0)
            m_known.push_back(place);
        pass(at, utf8, place);
    }
    if (utf8.find('\r') != std::string_view::npos)
        m_mostFrequent = mostFrequent(utf8);
}

Place PlaceIndex::place(std::size_t offset, std::string_view utf8) const
{
    offset = std::min(offset, utf8.size());
    if (offset <= m_begin || m_known.empty())
        return {};
    while (offset < utf8.size() && continuesCharacter(utf8[offset]))
        --offset;
    const std::size_t number = std::min((offset - m_begin) / k_distance, m_known.size() - 1);
    Known place = m_known[number];
    for (std::size_t at = m_begin + number * k_distance; at < offset; ++at)
        pass(at, utf8, place);
    return {place.line, place.column};
}

void PlaceIndex::pass(std::size_t at, std::string_view utf8, Known& place)
{
    const char byte = utf8[at];
    if (byte == '\n' || (byte == '\r' && !isFollowedByLineFeed(at, utf8))) {
        ++place.line;
        place.column = 1;
    } else if (!continuesCharacter(byte)) {
        ++place.column;
    }
}

} // namespace zupackage::authoring
