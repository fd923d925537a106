# Writes the style sheet and the script of the pages into a source.
# usage: cmake -DSTYLE=... -DSCRIPT=... -DOUTPUT=... -P embed.cmake

file(READ ${STYLE} style)
file(READ ${SCRIPT} script)
file(CONFIGURE OUTPUT ${OUTPUT} @ONLY NEWLINE_STYLE UNIX CONTENT [[
#include "site/resources.hpp"

namespace zu::cli {

const std::string_view k_style = R"---(@style@)---";
const std::string_view k_script = R"---(@script@)---";

} // namespace zu::cli
]])
