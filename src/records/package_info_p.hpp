#pragma once

#include "records/field.hpp"

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

namespace zupackage {

template <>
inline constexpr auto k_fields<zu::PackageInfoPrivate> = std::tuple(
    field("uuid", &zu::PackageInfoPrivate::uuid), field("path", &zu::PackageInfoPrivate::path),
    field("version", &zu::PackageInfoPrivate::version), field("channel", &zu::PackageInfoPrivate::channel),
    field("author", &zu::PackageInfoPrivate::author), field("organization", &zu::PackageInfoPrivate::organization),
    field("date", &zu::PackageInfoPrivate::date), field("typeVersion", &zu::PackageInfoPrivate::typeVersion),
    field("langToName", &zu::PackageInfoPrivate::langToName, "names"),
    field("langToDesc", &zu::PackageInfoPrivate::langToDesc, "descriptions"),
    field("supportedLanguages", &zu::PackageInfoPrivate::supportedLanguages),
    field("behaviors", &zu::PackageInfoPrivate::behaviors), field("languages", &zu::PackageInfoPrivate::languages),
    field("installer", &zu::PackageInfoPrivate::installer),
    field("robotRequirements", &zu::PackageInfoPrivate::robotRequirements),
    field("morvoRequirements", &zu::PackageInfoPrivate::morvoRequirements),
    field("services", &zu::PackageInfoPrivate::services),
    field("executableFiles", &zu::PackageInfoPrivate::executableFiles),
    field("dialogs", &zu::PackageInfoPrivate::dialogs),
    field("descriptionLanguages", &zu::PackageInfoPrivate::descriptionLanguages));

template <>
inline constexpr auto k_localFields<zu::PackageInfoPrivate> =
    std::tuple(field("installOnlyAtStartup", &zu::PackageInfoPrivate::installOnlyAtStartup));

// On the wire, these are their values alone, without keys.

template <>
inline constexpr auto
    k_fields<zu::RobotRequirement> = std::tuple(field("model", &zu::RobotRequirement::model),
                                                field("minHeadVersion", &zu::RobotRequirement::minHeadVersion),
                                                field("maxHeadVersion", &zu::RobotRequirement::maxHeadVersion),
                                                field("minBodyVersion", &zu::RobotRequirement::minBodyVersion),
                                                field("maxBodyVersion", &zu::RobotRequirement::maxBodyVersion));

template <>
inline constexpr auto
    k_fields<zu::MorvoRequirement> = std::tuple(field("minVersion", &zu::MorvoRequirement::minVersion),
                                                field("maxVersion", &zu::MorvoRequirement::maxVersion));

template <>
inline constexpr auto k_fields<zu::PackageService> = std::tuple(field("execStart", &zu::PackageService::execStart),
                                                                field("name", &zu::PackageService::name),
                                                                field("autoRun", &zu::PackageService::autoRun),
                                                                field("envVars", &zu::PackageService::envVars));

} // namespace zupackage
