#pragma once

#include "site/html.hpp"

#include <string>

namespace zu::cli {

/// What surrounds the content of a page.
struct PageFrame
{
    enum class Style
    {
        Linked, ///< the style sheet stands in a file
        Inline
    };

    std::string title;
    Style style = Style::Linked;
    std::string rootPath; ///< from the page to the folder of the site: "../", or nothing
    bool hasScript = false;
};

/// A whole document. Its content security policy allows the style sheet and the script of the site, by what they hold
/// where they stand in the page, and nothing else.
std::string documentOf(const PageFrame& frame, const Html& header, const Html& main);

} // namespace zu::cli
