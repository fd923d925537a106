#include "dump/records_dump.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

namespace zupackage {

namespace {

void dumpIdentity(LinePrinter& out, const zu::PackageInfoPrivate& package)
{
    out << "UUID: " << package.uuid << k_lineEnd;
    out << "Version: " << package.version << k_lineEnd;
    out << "Type Version: " << package.typeVersion << k_lineEnd;
    out << "Install Only At Startup: " << flagText(package.installOnlyAtStartup) << k_lineEnd;
    out << "Author: " << package.author << k_lineEnd;
    out << "Organization: " << package.organization << k_lineEnd;
    out << "Date: " << package.date << k_lineEnd;
    out << "Channel: " << package.channel << k_lineEnd;
    out << "Path: " << package.path << k_lineEnd;
}

void dumpRequirements(LinePrinter& out, const zu::PackageInfoPrivate& package)
{
    out << "Robotic requirements:" << k_lineEnd;
    for (const zu::RobotRequirement& robot : package.robotRequirements)
        out << "Model:" << robot.model << "; Head: " << robot.minHeadVersion << " ~ " << robot.maxHeadVersion
            << "; Body: " << robot.minBodyVersion << " ~ " << robot.maxBodyVersion << k_lineEnd;
    out << "Software requirements:" << k_lineEnd;
    for (const zu::MorvoRequirement& morvo : package.morvoRequirements)
        out << morvo.minVersion << " ~ " << morvo.maxVersion << k_lineEnd;
}

template <class Record>
void dumpRecords(LinePrinter& out, const char* title, const char* underline, const std::list<Record>& records)
{
    out << title << k_lineEnd << underline << k_lineEnd;
    for (const Record& record : records)
        dump(out, zu::PrivateRecord::of(record));
}

} // namespace

void dump(LinePrinter& out, const zu::PackageInfoPrivate& package)
{
    dumpIdentity(out, package);
    out << "Names: " << k_lineEnd;
    dumpTexts(out, package.langToName);
    out << "Descriptions:" << k_lineEnd;
    dumpTexts(out, package.langToDesc);
    out << "Supported Languages:" << k_lineEnd;
    for (const std::string& lang : package.supportedLanguages)
        out << "  " << lang << k_lineEnd;
    dumpRequirements(out, package);
    dumpRecords(out, "Languages", "*********", package.languages);
    dumpRecords(out, "Behaviors", "*********", package.behaviors);
    dumpRecords(out, "Dialogs", "*******", package.dialogs);
}

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const PackageInfo& package)
{
    return zupackage::print(out, PrivateRecord::of(package));
}

} // namespace zu
