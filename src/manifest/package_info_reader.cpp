#include "manifest/manifest_names.hpp"
#include "manifest/package_elements_reader.hpp"
#include "manifest/package_log.hpp"
#include "records/append_once.hpp"
#include "records/package_info_p.hpp"
#include "xml/document.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>

namespace zupackage {

namespace {

using namespace names;

/// Every child node of the container is a language.
void readLanguages(xml::Node container, OnceAppender& languages)
{
    for (const xml::Node child : container.children())
        languages.append(child.text());
}

/// Adds what a document says to a package's record.
void fill(zu::PackageInfoPrivate& record, xml::Node root)
{
    OnceAppender supported(record.supportedLanguages);
    OnceAppender description(record.descriptionLanguages);
    readRootAttributes(root, record);
    readSections(root, {{k_names, [&](xml::Node e) { xml::readTexts(e, k_lang, record.langToName); }},
                        {k_descriptions, [&](xml::Node e) { xml::readTexts(e, k_lang, record.langToDesc); }},
                        {k_services, [&](xml::Node e) { readServices(e, record.services); }},
                        {k_executableFiles, [&](xml::Node e) { readExecutableFiles(e, record.executableFiles); }},
                        {k_requirements,
                         [&](xml::Node e) { readRequirements(e, record.robotRequirements, record.morvoRequirements); }},
                        {k_supportedLanguages, [&](xml::Node e) { readLanguages(e, supported); }},
                        {k_descriptionLanguages, [&](xml::Node e) { readLanguages(e, description); }},
                        {k_contents,
                         [&](xml::Node e) { readContents(e, record.behaviors, record.dialogs, record.languages); }}});
}

/// @param source what was parsed, as the record names it.
void logSyntaxError(const std::string& source, const xml::ParseFailure& failure, const zu::log::Origin& origin)
{
    zu::log::write(k_packageCategory, zu::log::Level::Error, origin, [&] {
        return "Syntax error in " + source + " at line " + std::to_string(failure.line) + ", column " +
               std::to_string(failure.column) + ": " + failure.message;
    });
}

/// Adds what was parsed to the record.
/// @return false, with a log record and the record as it was, when it could not be parsed.
bool fillOrLog(zu::PackageInfoPrivate& record, const xml::ParseResult& result, const std::string& source,
               const zu::log::Origin& origin)
{
    if (const auto* failure = std::get_if<xml::ParseFailure>(&result)) {
        logSyntaxError(source, *failure, origin);
        return false;
    }
    fill(record, std::get<xml::Tree>(result).root());
    return true;
}

} // namespace

} // namespace zupackage

namespace zu {

bool PackageInfo::loadFromManifestContent(const std::string& content)
{
    return zupackage::fillOrLog(*m_p, zupackage::xml::parse(content), content,
                                zupackage::packageInfoOrigin("zu::PackageInfo::loadFromManifestContent", __LINE__));
}

bool PackageInfo::loadFromManifestFile(QFile& file)
{
    static constexpr char k_function[] = "zu::PackageInfo::loadFromManifestFile";
    const std::string name = zupackage::xml::toUtf8(file.fileName());
    if (!file.open(QIODevice::ReadOnly)) {
        log::write(zupackage::k_packageCategory, log::Level::Error, zupackage::packageInfoOrigin(k_function, __LINE__),
                   [&name] { return "Could not open " + name + " for reading"; });
        return false;
    }
    const zupackage::xml::ParseResult result = zupackage::xml::parse(file);
    file.close();
    return zupackage::fillOrLog(*m_p, result, name, zupackage::packageInfoOrigin(k_function, __LINE__));
}

bool PackageInfo::loadFromManifestFile(const std::string& path)
{
    QFile file(zupackage::xml::fromUtf8(path));
    return loadFromManifestFile(file);
}

} // namespace zu
