#pragma once

#include <map>
#include <ostream>
#include <string>

namespace zupackage {

/// How a flag is printed, whatever the format of the stream.
inline const char* flagText(bool flag) { return flag ? "1" : "0"; }

/// A line for each entry of a per-language map, as the dumps of packages, behaviors and languages have it.
inline void dumpTexts(std::ostream& out, const std::map<std::string, std::string>& langToText)
{
    for (const auto& [lang, text] : langToText)
        out << "  " << lang << " -> " << text << std::endl;
}

} // namespace zupackage
