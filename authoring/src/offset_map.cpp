#include "offset_map.hpp"

#include <algorithm>

namespace zupackage::authoring {

void OffsetMap::append(std::size_t bytes, std::size_t size)
{
    if (m_runs.empty() || m_runs.back().bytes != bytes || m_runs.back().size != size)
        m_runs.push_back({m_document, m_text, static_cast<std::uint32_t>(bytes), static_cast<std::uint32_t>(size)});
    m_document += static_cast<std::uint32_t>(bytes);
    m_text += static_cast<std::uint32_t>(size);
}

std::size_t OffsetMap::toDocument(std::size_t textOffset) const
{
    if (textOffset >= m_text)
        return m_document;
    const auto next = std::upper_bound(m_runs.begin(), m_runs.end(), textOffset,
                                       [](std::size_t offset, const Run& run) { return offset < run.text; });
    const Run& run = *std::prev(next);
    return run.document + (textOffset - run.text) / run.size * run.bytes;
}

std::size_t OffsetMap::toText(std::size_t documentOffset) const
{
    if (documentOffset >= m_document)
        return m_text;
    const auto next = std::upper_bound(m_runs.begin(), m_runs.end(), documentOffset,
                                       [](std::size_t offset, const Run& run) { return offset < run.document; });
    const Run& run = *std::prev(next);
    return run.bytes == 0 ? run.text : run.text + (documentOffset - run.document) / run.bytes * run.size;
}

} // namespace zupackage::authoring
