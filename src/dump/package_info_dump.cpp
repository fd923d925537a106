#include "dump/texts_dump.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"

namespace zupackage {

namespace {

void dumpIdentity(std::ostream& out, const zu::PackageInfoPrivate& package)
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

void dumpRequirements(std::ostream& out, const zu::PackageInfoPrivate& package)
{
    out << "Robotic requirements:" << std::endl;
    for (const zu::RobotRequirement& robot : package.robotRequirements)
        out << "Model:" << robot.model << "; Head: " << robot.minHeadVersion << " ~ " << robot.maxHeadVersion
            << "; Body: " << robot.minBodyVersion << " ~ " << robot.maxBodyVersion << std::endl;
    out << "Software requirements:" << std::endl;
    for (const zu::MorvoRequirement& morvo : package.morvoRequirements)
        out << morvo.minVersion << " ~ " << morvo.maxVersion << std::endl;
}

template <class Record>
void dumpRecords(std::ostream& out, const char* title, const char* underline, const std::list<Record>& records)
{
    out << title << std::endl << underline << std::endl;
    for (const Record& record : records)
        out << record;
}

void dump(std::ostream& out, const zu::PackageInfoPrivate& package)
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

} // namespace zupackage

namespace zu {

std::ostream& operator<<(std::ostream& out, const PackageInfo& package)
{
    zupackage::dump(out, PrivateRecord::of(package));
    return out;
}

} // namespace zu
