#include "dump/texts_dump.hpp"
#include "records/language_info_p.hpp"
#include "records/private_record.hpp"

namespace zu {

std::ostream& operator<<(std::ostream& out, const LanguageInfo& language)
{
    const LanguageInfoPrivate& record = PrivateRecord::of(language);
    out << "ISO 639 code: " << record.locale << std::endl;
    out << "Relative path: " << record.path << std::endl;
    out << "Engine name: " << record.engineName << std::endl;
    out << "Engine version: " << record.engineVersion << std::endl;
    out << "Names:" << std::endl;
    zupackage::dumpTexts(out, record.langToName);
    return out;
}

} // namespace zu
