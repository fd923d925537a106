#pragma once

#include <map>
#include <ostream>
#include <string>
#include <string_view>

namespace zupackage {

struct LineEnd
{
};

/// Ends a line and flushes the stream, as std::endl does.
inline constexpr LineEnd k_lineEnd;

/// Prints texts to a stream, a line at a time, because the stream checks its state before and after each insertion. The
/// stream ends up as if each text had been inserted by itself, its states and exceptions included.
class LinePrinter
{
public:
    explicit LinePrinter(std::ostream& out) : m_out(out), m_isDirect(wantsEachText(out)) {}

    LinePrinter& operator<<(std::string_view text)
    {
        if (m_isDirect)
            m_out << text;
        else
            m_line += text;
        return *this;
    }

    LinePrinter& operator<<(LineEnd lineEnd);

private:
    // The first text takes a width that is set; and with `unitbuf` each text has a flush of its own.
    static bool wantsEachText(const std::ostream& out)
    {
        return out.width() != 0 || (out.flags() & std::ios::unitbuf) != 0;
    }

    std::ostream& m_out;
    const bool m_isDirect;
    std::string m_line;
};

/// How a flag is printed, whatever the format of the stream.
inline const char* flagText(bool flag) { return flag ? "1" : "0"; }

/// A line for each entry of a per-language map, as the dumps of packages, behaviors and languages have it.
void dumpTexts(LinePrinter& out, const std::map<std::string, std::string>& langToText);

} // namespace zupackage
