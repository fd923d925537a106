#include "namespaces.hpp"

namespace zupackage::authoring {

namespace {

constexpr std::string_view k_xml = "http://www.w3.org/XML/1998/namespace";
constexpr std::string_view k_xmlns = "http://www.w3.org/2000/xmlns/";

} // namespace

Namespaces::Namespaces() { m_uris["xml"].emplace_back(k_xml); }

void Namespaces::declare(std::string_view prefix, std::string_view uri, std::size_t level)
{
    const auto entry = m_uris.emplace(std::string(prefix), std::vector<std::string>()).first;
    entry->second.emplace_back(uri);
    m_declarations.push_back({level, entry});
}

void Namespaces::leave(std::size_t level)
{
    for (; !m_declarations.empty() && m_declarations.back().level >= level; m_declarations.pop_back())
        m_declarations.back().prefix->second.pop_back();
}

std::optional<std::string_view> Namespaces::uri(std::string_view prefix) const
{
    const auto entry = m_uris.find(prefix);
    if (entry == m_uris.end() || entry->second.empty())
        return std::nullopt;
    return entry->second.back();
}

bool Namespaces::isLegal(std::string_view prefix, std::string_view uri)
{
    return prefix != "xmlns" && uri != k_xmlns && (prefix == "xml") == (uri == k_xml) &&
           (prefix.empty() || !uri.empty());
}

} // namespace zupackage::authoring
