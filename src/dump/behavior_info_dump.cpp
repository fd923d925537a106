#include "dump/records_dump.hpp"
#include "records/behavior_info_p.hpp"
#include "records/private_record.hpp"

namespace zupackage {

namespace {

/// Writes the texts with `separator` before each, which is ", " after the first.
void dumpJoined(LinePrinter& out, const std::list<std::string>& texts, const char*& separator, const char* quote)
{
    for (const std::string& text : texts) {
        out << separator << quote << text << quote;
        separator = ", ";
    }
}

void dumpQuoted(LinePrinter& out, const std::map<std::string, std::list<std::string>>& texts)
{
    for (const auto& [key, list] : texts) {
        const char* separator = "";
        out << "  " << key << " -> ";
        dumpJoined(out, list, separator, "\"");
        out << k_lineEnd;
    }
}

void dumpTags(LinePrinter& out, const std::map<std::string, std::list<std::string>>& tags)
{
    // Carried over from one language to the next: readers of these texts expect "  fr -> , c".
    const char* separator = "";
    for (const auto& [lang, list] : tags) {
        out << "  " << lang << " -> ";
        dumpJoined(out, list, separator, "");
        out << k_lineEnd;
    }
}

void dumpPermissions(LinePrinter& out, const std::list<std::string>& permissions)
{
    const char* separator = "";
    dumpJoined(out, permissions, separator, "");
    out << k_lineEnd;
}

} // namespace

void dump(LinePrinter& out, const zu::BehaviorInfoPrivate& record)
{
    out << "Path: " << record.path << k_lineEnd;
    out << "Nature: " << record.nature << k_lineEnd;
    out << "UserRequestable" << flagText(record.userRequestable) << k_lineEnd;
    out << "Names: " << k_lineEnd;
    dumpTexts(out, record.langToName);
    out << "Descriptions:" << k_lineEnd;
    dumpTexts(out, record.langToDesc);
    out << "Tags:" << k_lineEnd;
    dumpTags(out, record.langToTags);
    out << "Trigger sentences:" << k_lineEnd;
    dumpQuoted(out, record.langToTriggerSentences);
    out << "Loading responses:" << k_lineEnd;
    dumpQuoted(out, record.langToLoadingResponses);
    out << "Conditions:" << k_lineEnd;
    dumpQuoted(out, record.purposeToCondition);
    out << "Permissions:" << k_lineEnd;
    dumpPermissions(out, record.permissions);
}

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const BehaviorInfo& behavior)
{
    return zupackage::print(out, PrivateRecord::of(behavior));
}

} // namespace zu
