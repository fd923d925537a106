#include "vocabulary_table.hpp"

namespace zupackage::authoring {

namespace {

using zu::authoring::Occurrence;
using zu::authoring::ValueKind;

constexpr VocabularyRow element(int level, std::string_view name, Occurrence occurrence, ValueKind text,
                                std::string_view purpose, std::string_view identity = {})
{
    return {level, name, occurrence, text, identity, false, {}, false, purpose};
}

/// An element of which the reader takes every child for an entry.
constexpr VocabularyRow list(int level, std::string_view name, Occurrence occurrence, std::string_view purpose)
{
    return {level, name, occurrence, ValueKind::None, {}, true, {}, false, purpose};
}

constexpr VocabularyRow attribute(std::string_view name, ValueKind kind, std::string_view purpose)
{
    return {0, {}, Occurrence::Optional, kind, {}, false, name, false, purpose};
}

constexpr VocabularyRow required(std::string_view name, ValueKind kind, std::string_view purpose)
{
    return {0, {}, Occurrence::Once, kind, {}, false, name, true, purpose};
}

constexpr std::string_view k_languageOfText = "The language of the text.";

} // namespace

constexpr VocabularyRow k_vocabularyRows[] = {
    element(0, "package", Occurrence::Once, ValueKind::None, "Describes one application package."),
    required("uuid", ValueKind::Identifier,
             "What installers and stores know the package by, the same in every version."),
    required("version", ValueKind::Version, "The version of the package."),
    attribute("author", ValueKind::Text, "Who wrote the package."),
    attribute("organization", ValueKind::Text, "Whom the package comes from."),
    attribute("date", ValueKind::Date, "When this version was made."),
    attribute("typeVersion", ValueKind::Version, "The version of the manifest's own form."),
    attribute("channel", ValueKind::Text, "The distribution channel, such as stable or beta."),
    attribute("installOnlyAtStartup", ValueKind::Flag,
              "Whether the package is installed while the robot starts, and never while it runs."),

    list(1, "names", Occurrence::Once, "What the package is called, a name for each language."),
    element(2, "name", Occurrence::Repeated, ValueKind::Text, "The package's name in one language.", "lang"),
    required("lang", ValueKind::LanguageCode, k_languageOfText),

    list(1, "descriptions", Occurrence::Optional, "What the package does, a description for each language."),
    element(2, "description", Occurrence::Repeated, ValueKind::Text, "The package's description in one language.",
            "lang"),
    required("lang", ValueKind::LanguageCode, k_languageOfText),

    list(1, "supportedLanguages", Occurrence::Optional, "The languages that the robot speaks with this package."),
    element(2, "language", Occurrence::Repeated, ValueKind::LanguageCode, "One language that the package supports.",
            "."),

    list(1, "descriptionLanguages", Occurrence::Optional, "The languages in which the package describes itself."),
    element(2, "language", Occurrence::Repeated, ValueKind::LanguageCode,
            "One language that the package describes itself in.", "."),

    element(1, "contents", Occurrence::Once, ValueKind::None, "What the package brings to the robot."),
    element(2, "behaviorContent", Occurrence::Repeated, ValueKind::None, "A behavior that the robot can run.", "path"),
    required("path", ValueKind::Path, "The behavior's folder in the package."),
    element(3, "userRequestable", Occurrence::Optional, ValueKind::None,
            "Present when people may ask for the behavior; absent when they may not."),
    element(3, "nature", Occurrence::Once, ValueKind::Nature, "Whether the behavior is interactive or solitary."),
    list(3, "names", Occurrence::Optional, "What the behavior is called, a name for each language."),
    element(4, "name", Occurrence::Repeated, ValueKind::Text, "The behavior's name in one language.", "lang"),
    required("lang", ValueKind::LanguageCode, k_languageOfText),
    list(3, "descriptions", Occurrence::Optional, "What the behavior does, a description for each language."),
    element(4, "description", Occurrence::Repeated, ValueKind::Text, "The behavior's description in one language.",
            "lang"),
    required("lang", ValueKind::LanguageCode, k_languageOfText),
    list(3, "tags", Occurrence::Optional, "Words by which stores and people find the behavior."),
    element(4, "tag", Occurrence::Repeated, ValueKind::Text, "One word in one language."),
    required("lang", ValueKind::LanguageCode, k_languageOfText),
    list(3, "triggerSentences", Occurrence::Optional, "What people say to start the behavior."),
    element(4, "sentence", Occurrence::Repeated, ValueKind::Text, "One sentence that starts the behavior."),
    required("lang", ValueKind::LanguageCode, k_languageOfText),
    list(3, "loadingResponses", Occurrence::Optional, "What the robot says while the behavior loads."),
    element(4, "sentence", Occurrence::Repeated, ValueKind::Text, "One sentence that the robot says."),
    required("lang", ValueKind::LanguageCode, k_languageOfText),
    list(3, "autonomous", Occurrence::Optional, "When the robot may start the behavior of its own accord."),
    element(4, "condition", Occurrence::Repeated, ValueKind::Condition,
            "A condition under which the robot may start the behavior for its purpose."),
    required("purpose", ValueKind::Identifier, "What the robot starts the behavior for."),
    element(3, "permissions", Occurrence::Optional, ValueKind::None, "What the behavior may do."),
    element(4, "canRunInSleep", Occurrence::Optional, ValueKind::None, "The behavior may run while the robot sleeps."),
    element(4, "canRunOnPod", Occurrence::Optional, ValueKind::None,
            "The behavior may run while the robot stands on its charging pod."),
    element(4, "canStandUp", Occurrence::Optional, ValueKind::None, "The behavior may make the robot stand up."),
    element(4, "canSitDown", Occurrence::Optional, ValueKind::None, "The behavior may make the robot sit down."),

    element(2, "dialogContent", Occurrence::Repeated, ValueKind::None, "Something that the robot can talk about.",
            "topicName"),
    required("topicName", ValueKind::Identifier, "What the dialog engine knows the topic by."),
    attribute("typeVersion", ValueKind::Version, "The version of the topic files' form."),
    element(3, "topic", Occurrence::Repeated, ValueKind::None, "The topic in one language.", "language"),
    required("language", ValueKind::LanguageCode, "The language of the topic file."),
    required("path", ValueKind::Path, "The topic file in the package."),

    element(2, "languageContent", Occurrence::Repeated, ValueKind::None,
            "A language that the robot learns to speak with this package.", "path"),
    required("path", ValueKind::Path, "The folder of the language's data in the package."),
    element(3, "engine", Occurrence::Once, ValueKind::None, "The speech engine that the data is for."),
    required("name", ValueKind::Identifier, "What the speech engine is called."),
    attribute("version", ValueKind::Version, "The version of the speech engine."),
    element(3, "locale", Occurrence::Once, ValueKind::LanguageCode, "The language that the data is for."),
    list(3, "names", Occurrence::Optional, "What the language is called, a name for each language."),
    element(4, "name", Occurrence::Repeated, ValueKind::Text, "The language's name in one language.", "lang"),
    required("lang", ValueKind::LanguageCode, k_languageOfText),

    element(2, "webContent", Occurrence::Optional, ValueKind::None, "Pages that the robot serves."),
    required("path", ValueKind::Path, "The folder of the pages in the package."),

    element(1, "requirements", Occurrence::Optional, ValueKind::None, "What the package needs to run."),
    element(2, "morvoRequirement", Occurrence::Repeated, ValueKind::None,
            "Versions of the middleware that the package runs with."),
    attribute("minVersion", ValueKind::Version, "The oldest version that will do."),
    attribute("maxVersion", ValueKind::Version, "The newest version that will do."),
    element(2, "robotRequirement", Occurrence::Repeated, ValueKind::None, "A robot that the package runs on.", "model"),
    required("model", ValueKind::Identifier, "The model of the robot."),
    attribute("minHeadVersion", ValueKind::Version, "The oldest head that will do."),
    attribute("maxHeadVersion", ValueKind::Version, "The newest head that will do."),
    attribute("minBodyVersion", ValueKind::Version, "The oldest body that will do."),
    attribute("maxBodyVersion", ValueKind::Version, "The newest body that will do."),

    element(1, "services", Occurrence::Optional, ValueKind::None, "The programs that run beside the behaviors."),
    element(2, "service", Occurrence::Repeated, ValueKind::None, "One program.", "name"),
    attribute("autorun", ValueKind::Flag, "Whether it starts with the robot."),
    required("name", ValueKind::Identifier, "What the service is called."),
    required("execStart", ValueKind::Command, "The command line that starts it."),
    element(3, "envVar", Occurrence::Repeated, ValueKind::None, "A variable of its environment.", "name"),
    required("name", ValueKind::Identifier, "The name of the variable."),
    attribute("value", ValueKind::Text, "The value of the variable."),

    element(1, "executableFiles", Occurrence::Optional, ValueKind::None,
            "The files that are made executable when the package is installed."),
    element(2, "file", Occurrence::Repeated, ValueKind::None, "One such file.", "path"),
    required("path", ValueKind::Path, "The file in the package."),
};

const std::size_t k_vocabularyRowCount = std::size(k_vocabularyRows);

} // namespace zupackage::authoring
