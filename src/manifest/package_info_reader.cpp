#include "manifest/manifest_document.hpp"
#include "manifest/manifest_names.hpp"
#include "manifest/package_elements_reader.hpp"
#include "manifest/package_log.hpp"
#include "records/append_once.hpp"
#include "records/package_info_p.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QBuffer>
#include <QtCore/QFile>

#include <algorithm>
#include <limits>

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

std::string openFailure(const std::string& source) { return "Could not open " + source + " for reading"; }

std::string syntaxError(const std::string& source, const xml::ParseFailure& failure)
{
    return "Syntax error in " + source + " at line " + std::to_string(failure.line) + ", column " +
           std::to_string(failure.column) + ": " + failure.message;
}

/// One log record.
FailurePolicy logged(const zu::log::Origin& origin)
{
    return {&openFailure, &syntaxError, [origin](const std::string& message) {
                zu::log::write(k_packageCategory, zu::log::Level::Error, origin, message);
            }};
}

/// Adds what the document says to the record.
/// @return false, and nothing changes, when there is none.
bool fillFrom(const std::optional<xml::Tree>& document, zu::PackageInfoPrivate& record)
{
    if (document)
        fill(record, document->root());
    return document.has_value();
}

} // namespace

} // namespace zupackage

namespace zu {

bool PackageInfo::loadFromManifestContent(const std::string& content)
{
    const auto origin = zupackage::packageInfoOrigin("zu::PackageInfo::loadFromManifestContent", __LINE__);
    return zupackage::fillFrom(
        zupackage::documentFrom(zupackage::xml::parse(content), content, zupackage::logged(origin)), *m_p);
}

bool PackageInfo::loadFromManifestFile(QFile& file)
{
    const auto origin = zupackage::packageInfoOrigin("zu::PackageInfo::loadFromManifestFile", __LINE__);
    const std::string name = zupackage::xml::toUtf8(file.fileName());
    return zupackage::fillFrom(zupackage::documentIn(file, name, zupackage::logged(origin)), *m_p);
}

bool PackageInfo::loadFromManifestFile(const std::string& path)
{
    QFile file(zupackage::xml::fromUtf8(path));
    return loadFromManifestFile(file);
}

bool readManifest(const std::string& bytes, PackageInfo& package, ManifestSyntaxError* error)
{
    // What is beyond the reach of an int is far beyond the largest document that is read, too.
    const auto size = std::min<std::size_t>(bytes.size(), std::numeric_limits<int>::max());
    QByteArray content = QByteArray::fromRawData(bytes.data(), static_cast<int>(size));
    QBuffer device(&content);
    device.open(QIODevice::ReadOnly);
    zupackage::xml::ParseResult result = zupackage::xml::parse(device);
    if (const auto* tree = std::get_if<zupackage::xml::Tree>(&result)) {
        zupackage::fill(PrivateRecord::of(package), tree->root());
        return true;
    }
    auto& failure = std::get<zupackage::xml::ParseFailure>(result);
    if (error)
        *error = {std::move(failure.message), failure.line, failure.column};
    return false;
}

} // namespace zu
