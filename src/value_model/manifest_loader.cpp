#include "manifest/manifest_names.hpp"
#include "manifest/package_elements_reader.hpp"
#include "manifest/package_log.hpp"
#include "value_model/package_info2_keys.hpp"
#include "xml/document.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info2.hpp>

#include <QtCore/QFile>

#include <stdexcept>
#include <utility>

namespace zupackage {

namespace {

using namespace names;

keys::Texts textsByLanguage(xml::Node element)
{
    keys::Texts texts;
    xml::readTexts(element, k_lang, texts);
    return texts;
}

std::vector<zu::PackageService> services(xml::Node element)
{
    std::vector<zu::PackageService> services;
    readServices(element, services);
    return services;
}

std::vector<std::string> executableFiles(xml::Node element)
{
    std::vector<std::string> paths;
    readExecutableFiles(element, paths);
    return paths;
}

keys::Requirements requirements(xml::Node element)
{
    keys::Requirements requirements;
    readRequirements(element, requirements.first, requirements.second);
    return requirements;
}

std::vector<std::string> supportedLanguages(xml::Node element)
{
    std::vector<std::string> languages;
    for (const xml::Node child : element.children())
        languages.push_back(child.text());
    return languages;
}

template <class T>
void store(T value, keys::Key<T> key, keys::Values& values)
{
    values[key.name] = zu::AnyValue::from(std::move(value));
}

template <class Record>
void storeUnlessEmpty(const std::list<Record>& records, keys::Key<std::vector<Record>> key, keys::Values& contents)
{
    if (!records.empty())
        store(std::vector<Record>(records.begin(), records.end()), key, contents);
}

keys::Values contents(xml::Node element)
{
    // Lists first: a growing vector would copy the records again and again.
    std::list<zu::BehaviorInfo> behaviors;
    std::list<zu::DialogInfo> dialogs;
    std::list<zu::LanguageInfo> languages;
    readContents(element, behaviors, dialogs, languages);
    keys::Values contents;
    storeUnlessEmpty(behaviors, keys::k_behaviors, contents);
    storeUnlessEmpty(dialogs, keys::k_dialogs, contents);
    storeUnlessEmpty(languages, keys::k_languages, contents);
    for (const xml::Node child : element.children())
        if (child.name() == k_webContent)
            store(zu::WebInfo{child.attribute(k_path)}, keys::k_web, contents);
    return contents;
}

/// The section of that name, which stores what `read` gives.
template <class T>
Section section(std::string_view name, T (*read)(xml::Node element), keys::Key<T> key, keys::Values& elements)
{
    return {name, [read, key, &elements](xml::Node element) { store(read(element), key, elements); }};
}

zu::PackageInfo2 packageFrom(xml::Node root)
{
    zu::PackageInfo2 package;
    readRootAttributes(root, package);
    keys::Values& elements = package.elements;
    readSections(root, {section(k_names, &textsByLanguage, keys::k_names, elements),
                        section(k_descriptions, &textsByLanguage, keys::k_descriptions, elements),
                        section(k_services, &services, keys::k_services, elements),
                        section(k_executableFiles, &executableFiles, keys::k_executableFiles, elements),
                        section(k_requirements, &requirements, keys::k_requirements, elements),
                        section(k_supportedLanguages, &supportedLanguages, keys::k_supportedLanguages, elements),
                        section(k_contents, &contents, keys::k_contents, elements)});
    return package;
}

[[noreturn]] void fail(const std::string& message, int line)
{
    zu::log::write(packageInfoCategory(), zu::log::Level::Error, packageInfoOrigin("zu::loadManifest", line), message);
    throw std::runtime_error(message);
}

/// Opens, parses and reads the file of that name.
zu::PackageInfo2 load(const std::string& path)
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
    return packageFrom(std::get<xml::Tree>(result).root());
}

} // namespace

} // namespace zupackage

namespace zu {

PackageInfo2 loadManifest(const std::string& path) { return zupackage::load(path); }

} // namespace zu
