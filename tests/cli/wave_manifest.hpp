#pragma once

#include "support/texts.hpp"

#include <string>

namespace zu::test {

/// A manifest with a comment, to be committed.
inline const std::string k_waveManifest = "<?xml version='1.0'?>\n"
                                          "<package uuid=\"u\" version=\"1.0\">\n"
                                          "  <!-- for people -->\n"
                                          "  <names>\n"
                                          "    <name lang=\"en\">Wave</name>\n"
                                          "  </names>\n"
                                          "</package>\n";

/// The same with one more name.
inline std::string withName(const std::string& lang, const std::string& name)
{
    return replaced(k_waveManifest, "  </names>", "    <name lang=\"" + lang + "\">" + name + "</name>\n  </names>");
}

} // namespace zu::test
