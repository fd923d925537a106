#pragma once

#include <zupackage/authoring/place.hpp>
#include <zupackage/authoring/source_document.hpp>

#include <cstdint>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// Finds the places of a text's bytes: it knows some of them, at equal distances, and counts from there.
class PlaceIndex
{
public:
    PlaceIndex() = default;
    /// @param begin where the first line begins: behind a byte order mark.
    PlaceIndex(std::string_view utf8, std::size_t begin);

    zu::authoring::Place place(std::size_t offset, std::string_view utf8) const;
    zu::authoring::LineEnd mostFrequentLineEnd() const { return m_mostFrequent; }

private:
    struct Known
    {
        std::uint32_t line;
        std::uint32_t column;
    };

    static void pass(std::size_t at, std::string_view utf8, Known& place);

    std::size_t m_begin = 0;
    std::vector<Known> m_known;
    zu::authoring::LineEnd m_mostFrequent = zu::authoring::LineEnd::LineFeed;
};

} // namespace zupackage::authoring
