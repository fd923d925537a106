#include "dump/line_printer.hpp"

namespace zupackage {

LinePrinter& LinePrinter::operator<<(LineEnd /*lineEnd*/)
{
    if (m_isDirect) {
        m_out << std::endl;
    } else {
        m_line += '\n';
        m_out.write(m_line.data(), static_cast<std::streamsize>(m_line.size())).flush();
        m_line.clear();
    }
    return *this;
}

void dumpTexts(LinePrinter& out, const std::map<std::string, std::string>& langToText)
{
    for (const auto& [lang, text] : langToText)
        out << "  " << lang << " -> " << text << k_lineEnd;
}

} // namespace zupackage
