#pragma once

#include <QtCore/QString>

/// The element and attribute names of the manifest document, each for its reader and its writer.
namespace zu::xml::names {

inline const QString k_package = QStringLiteral("package"); ///< written; on reading, any root is one

inline const QString k_names = QStringLiteral("names");
inline const QString k_descriptions = QStringLiteral("descriptions");
inline const QString k_supportedLanguages = QStringLiteral("supportedLanguages");
inline const QString k_descriptionLanguages = QStringLiteral("descriptionLanguages");
inline const QString k_contents = QStringLiteral("contents");
inline const QString k_requirements = QStringLiteral("requirements");
inline const QString k_services = QStringLiteral("services");
inline const QString k_executableFiles = QStringLiteral("executableFiles");

inline const QString k_behaviorContent = QStringLiteral("behaviorContent");
inline const QString k_dialogContent = QStringLiteral("dialogContent");
inline const QString k_languageContent = QStringLiteral("languageContent");
inline const QString k_webContent = QStringLiteral("webContent");
inline const QString k_description = QStringLiteral("description");
inline const QString k_robotRequirement = QStringLiteral("robotRequirement");
inline const QString k_morvoRequirement = QStringLiteral("morvoRequirement");
inline const QString k_service = QStringLiteral("service");
inline const QString k_envVar = QStringLiteral("envVar");
inline const QString k_file = QStringLiteral("file");

inline const QString k_userRequestable = QStringLiteral("userRequestable");
inline const QString k_nature = QStringLiteral("nature");
inline const QString k_tag = QStringLiteral("tag");
inline const QString k_sentence = QStringLiteral("sentence");
inline const QString k_condition = QStringLiteral("condition");
inline const QString k_tags = QStringLiteral("tags");
inline const QString k_triggerSentences = QStringLiteral("triggerSentences");
inline const QString k_loadingResponses = QStringLiteral("loadingResponses");
inline const QString k_autonomous = QStringLiteral("autonomous");
inline const QString k_permissions = QStringLiteral("permissions");
inline const QString k_topic = QStringLiteral("topic");
inline const QString k_engine = QStringLiteral("engine");
inline const QString k_locale = QStringLiteral("locale");

inline const QString k_uuid = QStringLiteral("uuid");
inline const QString k_version = QStringLiteral("version");
inline const QString k_author = QStringLiteral("author");
inline const QString k_organization = QStringLiteral("organization");
inline const QString k_date = QStringLiteral("date");
inline const QString k_typeVersion = QStringLiteral("typeVersion");
inline const QString k_channel = QStringLiteral("channel");
inline const QString k_installOnlyAtStartup = QStringLiteral("installOnlyAtStartup");
inline const QString k_lang = QStringLiteral("lang");
inline const QString k_language = QStringLiteral("language");
inline const QString k_purpose = QStringLiteral("purpose");
inline const QString k_path = QStringLiteral("path");
inline const QString k_name = QStringLiteral("name");
inline const QString k_value = QStringLiteral("value");
inline const QString k_topicName = QStringLiteral("topicName");
inline const QString k_execStart = QStringLiteral("execStart");
inline const QString k_autorun = QStringLiteral("autorun");
inline const QString k_model = QStringLiteral("model");
inline const QString k_minHeadVersion = QStringLiteral("minHeadVersion");
inline const QString k_maxHeadVersion = QStringLiteral("maxHeadVersion");
inline const QString k_minBodyVersion = QStringLiteral("minBodyVersion");
inline const QString k_maxBodyVersion = QStringLiteral("maxBodyVersion");
inline const QString k_minVersion = QStringLiteral("minVersion");
inline const QString k_maxVersion = QStringLiteral("maxVersion");

} // namespace zu::xml::names
