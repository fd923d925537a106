#include "support/plain_dump.hpp"

#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

#include <ostream>

namespace zu::test {

namespace {

/// How a flag is printed, whatever the format of the stream.
const char* flagText(bool flag) { return flag ? "1" : "0"; }

/// A line for each entry of a per-language map, as the dumps of packages, behaviors and languages have it.
void dumpTexts(std::ostream& out, const std::map<std::string, std::string>& langToText)
{
    for (const auto& [lang, text] : langToText)
        out << "  " << lang << " -> " << text << std::endl;
}

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

void dump(std::ostream& out, const BehaviorInfoPrivate& record)
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

void dump(std::ostream& out, const DialogInfoPrivate& record)
{
    out << "Topic name: " << record.topicName << std::endl;
    out << "Type version: " << record.typeVersion << std::endl;
    out << "Topic files: " << std::endl;
    for (const auto& [lang, path] : record.topics)
        out << lang << " -> " << path << std::endl;
}

void dump(std::ostream& out, const LanguageInfoPrivate& record)
{
    out << "ISO 639 code: " << record.locale << std::endl;
    out << "Relative path: " << record.path << std::endl;
    out << "Engine name: " << record.engineName << std::endl;
    out << "Engine version: " << record.engineVersion << std::endl;
    out << "Names:" << std::endl;
    dumpTexts(out, record.langToName);
}

void dumpIdentity(std::ostream& out, const PackageInfoPrivate& package)
{
    out << "UUID: " << package.uuid << std::endl;
    out << "Version: " << package.version << std::endl;
    out << "Type Version: " << package.typeVersion << std::endl;
    out << "Install Only At Startup: " << flagText(package.installOnlyAtStartup) << std::endl;
    out << "Author: " << package.author << std::endl;
    out << "Organization: " << package.organization << std::endl;
    out << "Date: " << package.date << std::endl;
    out << "Channel: " << package.channel << std::endl;
    out << "Path: " << package.path << std::endl;
}

void dumpRequirements(std::ostream& out, const PackageInfoPrivate& package)
{
    out << "Robotic requirements:" << std::endl;
    for (const RobotRequirement& robot : package.robotRequirements)
        out << "Model:" << robot.model << "; Head: " << robot.minHeadVersion << " ~ " << robot.maxHeadVersion
            << "; Body: " << robot.minBodyVersion << " ~ " << robot.maxBodyVersion << std::endl;
    out << "Software requirements:" << std::endl;
    for (const MorvoRequirement& morvo : package.morvoRequirements)
        out << morvo.minVersion << " ~ " << morvo.maxVersion << std::endl;
}

template <class Record>
void dumpRecords(std::ostream& out, const char* title, const char* underline, const std::list<Record>& records)
{
    out << title << std::endl << underline << std::endl;
    for (const Record& record : records)
        dump(out, PrivateRecord::of(record));
}

void dump(std::ostream& out, const PackageInfoPrivate& package)
{
    dumpIdentity(out, package);
    out << "Names: " << std::endl;
    dumpTexts(out, package.langToName);
    out << "Descriptions:" << std::endl;
    dumpTexts(out, package.langToDesc);
    out << "Supported Languages:" << std::endl;
    for (const std::string& lang : package.supportedLanguages)
        out << "  " << lang << std::endl;
    dumpRequirements(out, package);
    dumpRecords(out, "Languages", "*********", package.languages);
    dumpRecords(out, "Behaviors", "*********", package.behaviors);
    dumpRecords(out, "Dialogs", "*******", package.dialogs);
}

} // namespace

void plainDump(std::ostream& out, const PackageInfo& package) { dump(out, PrivateRecord::of(package)); }

} // namespace zu::test
