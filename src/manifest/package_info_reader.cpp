#include "manifest/manifest_names.hpp"
#include "manifest/package_elements_reader.hpp"
#include "manifest/package_log.hpp"
#include "records/language_appender.hpp"
#include "records/package_info_p.hpp"
#include "xml/document.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>

namespace zu {

namespace {

using namespace xml::names;

/// Every child node of the container is a language.
void readLanguages(const QDomNode& container, LanguageAppender& languages)
{
    for (const QDomNode& child : xml::children(container))
        languages.append(xml::text(child));
}

/// Adds what a document says to a package's record.
void fill(PackageInfoPrivate& record, const QDomNode& root)
{
    LanguageAppender supported(record.supportedLanguages);
    LanguageAppender description(record.descriptionLanguages);
    readRootAttributes(root, record);
    using Element = const QDomNode&;
    readSections(
        root,
        {{k_names, [&](Element e) { xml::readTexts(e, k_lang, record.langToName); }},
         {k_descriptions, [&](Element e) { xml::readTexts(e, k_lang, record.langToDesc); }},
         {k_services, [&](Element e) { readServices(e, record.services); }},
         {k_executableFiles, [&](Element e) { readExecutableFiles(e, record.executableFiles); }},
         {k_requirements, [&](Element e) { readRequirements(e, record.robotRequirements, record.morvoRequirements); }},
         {k_supportedLanguages, [&](Element e) { readLanguages(e, supported); }},
         {k_descriptionLanguages, [&](Element e) { readLanguages(e, description); }},
         {k_contents, [&](Element e) { readContents(e, record.behaviors, record.dialogs, record.languages); }}});
}

/// @param source what was parsed, as the record names it.
void logSyntaxError(const std::string& source, const xml::ParseFailure& failure, const log::Origin& origin)
{
    log::write(k_packageCategory, log::Level::Error, origin, [&] {
        return "Syntax error in " + source + " at line " + std::to_string(failure.line) + ", column " +
               std::to_string(failure.column) + ": " + failure.message;
    });
}

} // namespace

bool PackageInfo::loadFromManifestContent(const std::string& content)
{
    const xml::ParseResult result = xml::parse(content);
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result)) {
        logSyntaxError(content, *failure, packageInfoOrigin("zu::PackageInfo::loadFromManifestContent", __LINE__));
        return false;
    }
    fill(*m_p, std::get<QDomDocument>(result).documentElement());
    return true;
}

bool PackageInfo::loadFromManifestFile(QFile& file)
{
    static constexpr char k_function[] = "zu::PackageInfo::loadFromManifestFile";
    if (!file.open(QIODevice::ReadOnly)) {
        log::write(k_packageCategory, log::Level::Error, packageInfoOrigin(k_function, __LINE__),
                   [&file] { return "Could not open " + file.fileName().toStdString() + " for reading"; });
        return false;
    }
    const xml::ParseResult result = xml::parse(file);
    file.close();
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result)) {
        logSyntaxError(file.fileName().toStdString(), *failure, packageInfoOrigin(k_function, __LINE__));
        return false;
    }
    fill(*m_p, std::get<QDomDocument>(result).documentElement());
    return true;
}

bool PackageInfo::loadFromManifestFile(const std::string& path)
{
    QFile file(xml::fromUtf8(path));
    return loadFromManifestFile(file);
}

} // namespace zu
