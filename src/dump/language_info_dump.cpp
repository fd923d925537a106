#include "dump/records_dump.hpp"
#include "records/language_info_p.hpp"
#include "records/private_record.hpp"

namespace zupackage {

void dump(LinePrinter& out, const zu::LanguageInfoPrivate& record)
{
    out << "ISO 639 code: " << record.locale << k_lineEnd;
    out << "Relative path: " << record.path << k_lineEnd;
    out << "Engine name: " << record.engineName << k_lineEnd;
    out << "Engine version: " << record.engineVersion << k_lineEnd;
    out << "Names:" << k_lineEnd;
    dumpTexts(out, record.langToName);
}

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const LanguageInfo& language)
{
    return zupackage::print(out, PrivateRecord::of(language));
}

} // namespace zu
