#include "dump/texts_dump.hpp"

#include <zupackage/package_info.hpp>

namespace zu {

namespace {

void dumpIdentity(std::ostream& out, const PackageInfo& package)
{
    out << "UUID: " << package.uuid() << std::endl;
    out << "Version: " << package.version() << std::endl;
    out << "Type Version: " << package.typeVersion() << std::endl;
    out << "Install Only At Startup: " << package.installOnlyAtStartup() << std::endl;
    out << "Author: " << package.author() << std::endl;
    out << "Organization: " << package.organization() << std::endl;
    out << "Date: " << package.date() << std::endl;
    out << "Channel: " << package.channel() << std::endl;
    out << "Path: " << package.path() << std::endl;
}

void dumpRequirements(std::ostream& out, const PackageInfo& package)
{
    out << "Robotic requirements:" << std::endl;
    for (const RobotRequirement& robot : package.robotRequirements())
        out << "Model:" << robot.model << "; Head: " << robot.minHeadVersion << " ~ " << robot.maxHeadVersion
            << "; Body: " << robot.minBodyVersion << " ~ " << robot.maxBodyVersion << std::endl;
    out << "Software requirements:" << std::endl;
    for (const MorvoRequirement& morvo : package.morvoRequirements())
        out << morvo.minVersion << " ~ " << morvo.maxVersion << std::endl;
}

template <class Record>
void dumpRecords(std::ostream& out, const char* title, const char* underline, const std::list<Record>& records)
{
    out << title << std::endl << underline << std::endl;
    for (const Record& record : records)
        out << record;
}

} // namespace

std::ostream& operator<<(std::ostream& out, const PackageInfo& package)
{
    dumpIdentity(out, package);
    out << "Names: " << std::endl;
    dumpTexts(out, package.names());
    out << "Descriptions:" << std::endl;
    dumpTexts(out, package.descriptions());
    out << "Supported Languages:" << std::endl;
    for (const std::string& lang : package.supportedLanguages())
        out << "  " << lang << std::endl;
    dumpRequirements(out, package);
    dumpRecords(out, "Languages", "*********", package.languages());
    dumpRecords(out, "Behaviors", "*********", package.behaviors());
    dumpRecords(out, "Dialogs", "*******", package.dialogs());
    return out;
}

} // namespace zu
