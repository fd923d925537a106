#include "behavior_info_p.hpp"
#include "private_record.hpp"
#include "texts_dump.hpp"

#include <ostream>

namespace zu {

namespace {

void dumpQuoted(std::ostream& out, const std::map<std::string, std::list<std::string>>& texts)
{
    for (const auto& [key, list] : texts) {
        out << "  " << key << " -> ";
        const char* separator = "";
        for (const std::string& text : list) {
            out << separator << '"' << text << '"';
            separator = ", ";
        }
        out << std::endl;
    }
}

void dumpTags(std::ostream& out, const std::map<std::string, std::list<std::string>>& tags)
{
    // Carried over from one language to the next: readers of these texts expect "  fr -> , c".
    const char* separator = "";
    for (const auto& [lang, list] : tags) {
        out << "  " << lang << " -> ";
        for (const std::string& tag : list) {
            out << separator << tag;
            separator = ", ";
        }
        out << std::endl;
    }
}

void dumpPermissions(std::ostream& out, const std::list<std::string>& permissions)
{
    const char* separator = "";
    for (const std::string& permission : permissions) {
        out << separator << permission;
        separator = ", ";
    }
    out << std::endl;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const BehaviorInfo& behavior)
{
    const BehaviorInfoPrivate& record = PrivateRecord::of(behavior);
    out << "Path: " << record.path << std::endl;
    out << "Nature: " << record.nature << std::endl;
    out << "UserRequestable" << record.userRequestable << std::endl;
    out << "Names: " << std::endl;
    dumpTexts(out, record.langToName);
    out << "Descriptions:" << std::endl;
    dumpTexts(out, record.langToDesc);
    out << "Tags:" << std::endl;
    dumpTags(out, record.langToTags);
    out << "Trigger sentences:" << std::endl;
    dumpQuoted(out, record.langToTriggerSentences);
    out << "Loading responses:" << std::endl;
    dumpQuoted(out, record.langToLoadingResponses);
    out << "Conditions:" << std::endl;
    dumpQuoted(out, record.purposeToCondition);
    out << "Permissions:" << std::endl;
    dumpPermissions(out, record.permissions);
    return out;
}

} // namespace zu
