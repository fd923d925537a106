#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace zupackage::authoring {

/// The namespace prefixes that are in scope while a document is read.
class Namespaces
{
public:
    Namespaces();

    /// For the element that is open at that level, and those in it. An empty prefix is that of names without one.
    void declare(std::string_view prefix, std::string_view uri, std::size_t level);
    /// The element at that level ends.
    void leave(std::size_t level);

    /// Nothing when the prefix is not declared.
    std::optional<std::string_view> uri(std::string_view prefix) const;

    std::size_t inScope() const { return m_declarations.size(); }

    /// Whether a declaration may say so.
    static bool isLegal(std::string_view prefix, std::string_view uri);

private:
    using Uris = std::map<std::string, std::vector<std::string>, std::less<>>;
    struct Declaration
    {
        std::size_t level;
        Uris::iterator prefix;
    };

    Uris m_uris; ///< by prefix, the innermost last
    std::vector<Declaration> m_declarations;
};

} // namespace zupackage::authoring
