#pragma once

#include <zupackage/package_info.hpp>

namespace zu {

struct PackageInfoPrivate
{
    std::string installer;
    std::string uuid;
    std::string path;
    std::string version;
    std::string channel;
    std::string author;
    std::string organization;
    std::string date;
    std::string typeVersion;
    bool installOnlyAtStartup = false;
    std::map<std::string, std::string> langToName;
    std::map<std::string, std::string> langToDesc;
    std::list<std::string> supportedLanguages;
    std::list<std::string> descriptionLanguages;
    std::list<BehaviorInfo> behaviors;
    std::list<DialogInfo> dialogs;
    std::list<LanguageInfo> languages;
    std::list<RobotRequirement> robotRequirements;
    std::list<MorvoRequirement> morvoRequirements;
    std::list<PackageService> services;
    std::list<std::string> executableFiles;
};

} // namespace zu
