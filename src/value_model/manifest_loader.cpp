#include "manifest/manifest_document.hpp"
#include "manifest/manifest_names.hpp"
#include "manifest/package_elements_reader.hpp"
#include "manifest/package_log.hpp"
#include "value_model/package_info2_keys.hpp"
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

/// Empty, with room for an entry for each child that is one: growing, a vector would copy what it holds.
template <class Entry, class IsEntry>
std::vector<Entry> roomForEach(xml::Node container, IsEntry isEntry)
{
    std::size_t count = 0;
    for (const xml::Node child : container.children())
        count += isEntry(child) ? 1u : 0u;
    std::vector<Entry> entries;
    entries.reserve(count);
    return entries;
}

template <class Entry>
std::vector<Entry> roomFor(std::string_view name, xml::Node container)
{
    return roomForEach<Entry>(container, [name](xml::Node child) { return child.name() == name; });
}

std::vector<zu::PackageService> services(xml::Node element)
{
    auto services = roomFor<zu::PackageService>(k_service, element);
    readServices(element, services);
    return services;
}

std::vector<std::string> executableFiles(xml::Node element)
{
    auto paths = roomFor<std::string>(k_file, element);
    readExecutableFiles(element, paths);
    return paths;
}

keys::Requirements requirements(xml::Node element)
{
    keys::Requirements requirements{roomFor<zu::RobotRequirement>(k_robotRequirement, element),
                                    roomFor<zu::MorvoRequirement>(k_morvoRequirement, element)};
    readRequirements(element, requirements.first, requirements.second);
    return requirements;
}

std::vector<std::string> supportedLanguages(xml::Node element)
{
    auto languages = roomForEach<std::string>(element, [](xml::Node /*child*/) { return true; });
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
void storeUnlessEmpty(std::vector<Record> records, keys::Key<std::vector<Record>> key, keys::Values& contents)
{
    if (!records.empty())
        store(std::move(records), key, contents);
}

keys::Values contents(xml::Node element)
{
    auto behaviors = roomFor<zu::BehaviorInfo>(k_behaviorContent, element);
    auto dialogs = roomFor<zu::DialogInfo>(k_dialogContent, element);
    auto languages = roomFor<zu::LanguageInfo>(k_languageContent, element);
    readContents(element, behaviors, dialogs, languages);
    keys::Values contents;
    storeUnlessEmpty(std::move(behaviors), keys::k_behaviors, contents);
    storeUnlessEmpty(std::move(dialogs), keys::k_dialogs, contents);
    storeUnlessEmpty(std::move(languages), keys::k_languages, contents);
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

std::string cannotOpen(const std::string& source) { return "Could not open " + source + " for reading."; }

std::string syntaxErrorIn(const std::string& source, const xml::ParseFailure& failure)
{
    return "Syntax error in " + source + ":" + std::to_string(failure.line) + ":" + std::to_string(failure.column) +
           ": " + failure.message;
}

[[noreturn]] void logAndThrow(const std::string& message)
{
    zu::log::write(packageInfoCategory(), zu::log::Level::Error, packageInfoOrigin("zu::loadManifest", __LINE__),
                   message);
    throw std::runtime_error(message);
}

} // namespace

} // namespace zupackage

namespace zu {

PackageInfo2 loadManifest(const std::string& path)
{
    QFile file(zupackage::xml::fromUtf8(path));
    const zupackage::FailurePolicy thrown{&zupackage::cannotOpen, &zupackage::syntaxErrorIn, &zupackage::logAndThrow};
    return zupackage::packageFrom(zupackage::documentIn(file, path, thrown)->root());
}

} // namespace zu
