#include "records/dialog_info_p.hpp"
#include "records/private_record.hpp"

#include <ostream>

namespace zu {

std::ostream& operator<<(std::ostream& out, const DialogInfo& dialog)
{
    const DialogInfoPrivate& record = PrivateRecord::of(dialog);
    out << "Topic name: " << record.topicName << std::endl;
    out << "Type version: " << record.typeVersion << std::endl;
    out << "Topic files: " << std::endl;
    for (const auto& [lang, path] : record.topics)
        out << lang << " -> " << path << std::endl;
    return out;
}

} // namespace zu
