#include "dump/records_dump.hpp"
#include "records/dialog_info_p.hpp"
#include "records/private_record.hpp"

namespace zupackage {

void dump(LinePrinter& out, const zu::DialogInfoPrivate& record)
{
    out << "Topic name: " << record.topicName << k_lineEnd;
    out << "Type version: " << record.typeVersion << k_lineEnd;
    out << "Topic files: " << k_lineEnd;
    for (const auto& [lang, path] : record.topics)
        out << lang << " -> " << path << k_lineEnd;
}

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const DialogInfo& dialog)
{
    return zupackage::print(out, PrivateRecord::of(dialog));
}

} // namespace zu
