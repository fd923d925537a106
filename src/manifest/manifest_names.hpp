#pragma once

#include <string_view>

/// The element and attribute names of the manifest document, each for its reader and its writer.
namespace zupackage::names {

inline constexpr std::string_view k_package = "package"; ///< written; on reading, any root is one

inline constexpr std::string_view k_names = "names";
inline constexpr std::string_view k_descriptions = "descriptions";
inline constexpr std::string_view k_supportedLanguages = "supportedLanguages";
inline constexpr std::string_view k_descriptionLanguages = "descriptionLanguages";
inline constexpr std::string_view k_contents = "contents";
inline constexpr std::string_view k_requirements = "requirements";
inline constexpr std::string_view k_services = "services";
inline constexpr std::string_view k_executableFiles = "executableFiles";

inline constexpr std::string_view k_behaviorContent = "behaviorContent";
inline constexpr std::string_view k_dialogContent = "dialogContent";
inline constexpr std::string_view k_languageContent = "languageContent";
inline constexpr std::string_view k_webContent = "webContent";
inline constexpr std::string_view k_description = "description";
inline constexpr std::string_view k_robotRequirement = "robotRequirement";
inline constexpr std::string_view k_morvoRequirement = "morvoRequirement";
inline constexpr std::string_view k_service = "service";
inline constexpr std::string_view k_envVar = "envVar";
inline constexpr std::string_view k_file = "file";

inline constexpr std::string_view k_userRequestable = "userRequestable";
inline constexpr std::string_view k_nature = "nature";
inline constexpr std::string_view k_tag = "tag";
inline constexpr std::string_view k_sentence = "sentence";
inline constexpr std::string_view k_condition = "condition";
inline constexpr std::string_view k_tags = "tags";
inline constexpr std::string_view k_triggerSentences = "triggerSentences";
inline constexpr std::string_view k_loadingResponses = "loadingResponses";
inline constexpr std::string_view k_autonomous = "autonomous";
inline constexpr std::string_view k_permissions = "permissions";
inline constexpr std::string_view k_topic = "topic";
inline constexpr std::string_view k_engine = "engine";
inline constexpr std::string_view k_locale = "locale";

inline constexpr std::string_view k_uuid = "uuid";
inline constexpr std::string_view k_version = "version";
inline constexpr std::string_view k_author = "author";
inline constexpr std::string_view k_organization = "organization";
inline constexpr std::string_view k_date = "date";
inline constexpr std::string_view k_typeVersion = "typeVersion";
inline constexpr std::string_view k_channel = "channel";
inline constexpr std::string_view k_installOnlyAtStartup = "installOnlyAtStartup";
inline constexpr std::string_view k_lang = "lang";
inline constexpr std::string_view k_language = "language";
inline constexpr std::string_view k_purpose = "purpose";
inline constexpr std::string_view k_path = "path";
inline constexpr std::string_view k_name = "name";
inline constexpr std::string_view k_value = "value";
inline constexpr std::string_view k_topicName = "topicName";
inline constexpr std::string_view k_execStart = "execStart";
inline constexpr std::string_view k_autorun = "autorun";
inline constexpr std::string_view k_model = "model";
inline constexpr std::string_view k_minHeadVersion = "minHeadVersion";
inline constexpr std::string_view k_maxHeadVersion = "maxHeadVersion";
inline constexpr std::string_view k_minBodyVersion = "minBodyVersion";
inline constexpr std::string_view k_maxBodyVersion = "maxBodyVersion";
inline constexpr std::string_view k_minVersion = "minVersion";
inline constexpr std::string_view k_maxVersion = "maxVersion";

} // namespace zupackage::names
