#include <zupackage/dialog_info.hpp>

#include <ostream>

namespace zu {

std::ostream& operator<<(std::ostream& out, const DialogInfo& dialog)
{
    out << "Topic name: " << dialog.topicName() << std::endl;
    out << "Type version: " << dialog.typeVersion() << std::endl;
    out << "Topic files: " << std::endl;
    for (const auto& [lang, path] : dialog.topics())
        out << lang << " -> " << path << std::endl;
    return out;
}

} // namespace zu
