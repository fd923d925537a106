#include "dump/texts_dump.hpp"
#include "records/behavior_info_p.hpp"
#include "records/private_record.hpp"

#include <ostream>

namespace zupackage {

namespace {

/// Writes the texts with `separator` before each, which is ", " after the first.
void dumpJoined(std::ostream& out, const std::list<std::string>& texts, const char*& separator, const char* quote)
{
    for (const std::string& text : texts) {
        out << separator << quote << text << quote;
        separator = ", ";
    }
}

void dumpQuoted(std::ostream& out, const std::map<std::string, std::list<std::string>>& texts)
{
    for (const auto& [key, list] : texts) {
        const char* separator = "";
        out << "  " << key << " -> ";
        dumpJoined(out, list, separator, "\"");
        out << std::endl;
    }
}

void dumpTags(std::ostream& out, const std::map<std::string, std::list<std::string>>& tags)
{
    // Carried over from one language to the next: readers of these texts expect "  fr -> , c".
    const char* separator = "";
    for (const auto& [lang, list] : tags) {
        out << "  " << lang << " -> ";
        dumpJoined(out, list, separator, "");
        out << std::endl;
    }
}

void dumpPermissions(std::ostream& out, const std::list<std::string>& permissions)
{
    const char* separator = "";
    dumpJoined(out, permissions, separator, "");
    out << std::endl;
}

void dump(std::ostream& out, const zu::BehaviorInfoPrivate& record)
{
    out << "Path: " << record.path << std::endl;
    out << "Nature: " << record.nature << std::endl;
    out << "UserRequestable" << flagText(record.userRequestable) << std::endl;
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
}

} // namespace

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const BehaviorInfo& behavior)
{
    zupackage::dump(out, PrivateRecord::of(behavior));
    return out;
}

} // namespace zu
