#include "package_elements_reader.hpp"
#include "package_info2_keys.hpp"
#include "package_log.hpp"
#include "xml/document.hpp"
#include "xml/manifest_names.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info2.hpp>

#include <QtCore/QFile>

#include <stdexcept>
#include <utility>

namespace zu {

namespace {

using namespace xml::names;

std::map<std::string, std::string> textsByLanguage(const QDomNode& element)
{
    std::map<std::string, std::string> texts;
    xml::readTexts(element, k_lang, texts);
    return texts;
}

std::vector<PackageService> services(const QDomNode& element)
{
    std::vector<PackageService> services;
    readServices(element, services);
    return services;
}

std::vector<std::string> executableFiles(const QDomNode& element)
{
    std::vector<std::string> paths;
    readExecutableFiles(element, paths);
    return paths;
}

std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>> requirements(const QDomNode& element)
{
    std::pair<std::vector<RobotRequirement>, std::vector<MorvoRequirement>> requirements;
    readRequirements(element, requirements.first, requirements.second);
    return requirements;
}

std::vector<std::string> supportedLanguages(const QDomNode& element)
{
    std::vector<std::string> languages;
    for (const QDomNode& child : xml::children(element))
        languages.push_back(xml::text(child));
    return languages;
}

template <class Record>
void storeUnlessEmpty(const std::list<Record>& records, const char* key, std::map<std::string, AnyValue>& contents)
{
    if (!records.empty())
        contents[key] = AnyValue::from(std::vector<Record>(records.begin(), records.end()));
}

std::map<std::string, AnyValue> contents(const QDomNode& element)
{
    // Lists first: a growing vector would copy the records again and again.
    std::list<BehaviorInfo> behaviors;
    std::list<DialogInfo> dialogs;
    std::list<LanguageInfo> languages;
    readContents(element, behaviors, dialogs, languages);
    std::map<std::string, AnyValue> contents;
    storeUnlessEmpty(behaviors, keys::k_behaviors, contents);
    storeUnlessEmpty(dialogs, keys::k_dialogs, contents);
    storeUnlessEmpty(languages, keys::k_languages, contents);
    for (const QDomNode& child : xml::children(element))
        if (child.nodeName() == k_webContent)
            contents[keys::k_web] = AnyValue::from(WebInfo{xml::attribute(child, k_path)});
    return contents;
}

PackageInfo2 packageFrom(const QDomNode& root)
{
    PackageInfo2 package;
    readRootAttributes(root, package);
    const auto section = [&package](const QString& name, const char* key, auto read) {
        return Section{name, [&package, key, read](const QDomNode& element) {
                           package.elements[key] = AnyValue::from(read(element));
                       }};
    };
    readSections(root, {section(k_names, keys::k_names, &textsByLanguage),
                        section(k_descriptions, keys::k_descriptions, &textsByLanguage),
                        section(k_services, keys::k_services, &services),
                        section(k_executableFiles, keys::k_executableFiles, &executableFiles),
                        section(k_requirements, keys::k_requirements, &requirements),
                        section(k_supportedLanguages, keys::k_supportedLanguages, &supportedLanguages),
                        section(k_contents, keys::k_contents, &contents)});
    return package;
}

[[noreturn]] void fail(const std::string& message, int line)
{
    log::write(packageInfoCategory(), log::Level::Error, packageInfoOrigin("zu::loadManifest", line), message);
    throw std::runtime_error(message);
}

} // namespace

PackageInfo2 loadManifest(const std::string& path)
{
    QFile file(xml::fromUtf8(path));
    if (!file.open(QIODevice::ReadOnly))
        fail("Could not open " + path + " for reading.", __LINE__);
    const xml::ParseResult result = xml::parse(file);
    file.close();
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result))
        fail("Syntax error in " + path + ":" + std::to_string(failure->line) + ":" + std::to_string(failure->column) +
                 ": " + failure->message,
             __LINE__);
    return packageFrom(std::get<QDomDocument>(result).documentElement());
}

} // namespace zu
