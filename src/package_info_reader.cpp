#include "behavior_info_p.hpp"
#include "language_info_p.hpp"
#include "package_elements_reader.hpp"
#include "package_info_p.hpp"
#include "package_log.hpp"
#include "private_record.hpp"
#include "xml/document.hpp"
#include "xml/manifest_names.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>
#include <QtXml/QDomElement>

namespace zu {

namespace {

using namespace xml::names;

void readNames(const QDomNode& container, PackageInfo& package)
{
    xml::readTexts(container, k_lang, PrivateRecord::of(package).langToName);
}

void readDescriptions(const QDomNode& container, PackageInfo& package)
{
    xml::readTexts(container, k_lang, PrivateRecord::of(package).langToDesc);
}

void readServices(const QDomNode& container, PackageInfo& package)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == k_service)
            readService(child, PrivateRecord::of(package).services.emplace_back());
}

void readExecutableFiles(const QDomNode& container, PackageInfo& package)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == k_file)
            package.addExecutableFile(xml::attribute(child, k_path));
}

void readRequirements(const QDomNode& container, PackageInfo& package)
{
    for (const QDomNode& child : xml::children(container)) {
        if (child.nodeName() == k_robotRequirement)
            package.robotRequirements().push_back(readRobotRequirement(child));
        else if (child.nodeName() == k_morvoRequirement)
            package.morvoRequirements().push_back(readMorvoRequirement(child));
    }
}

void readSupportedLanguages(const QDomNode& container, PackageInfo& package)
{
    for (const QDomNode& child : xml::children(container))
        package.addSupportedLanguage(xml::text(child));
}

void readDescriptionLanguages(const QDomNode& container, PackageInfo& package)
{
    for (const QDomNode& child : xml::children(container))
        package.addDescriptionLanguage(xml::text(child));
}

void readContents(const QDomNode& container, PackageInfo& package)
{
    PackageInfoPrivate& record = PrivateRecord::of(package);
    for (const QDomNode& child : xml::children(container)) {
        const QString name = child.nodeName();
        if (name == k_behaviorContent) {
            PrivateRecord::of(record.behaviors.emplace_back()).loadFromManifest(child);
        } else if (name == k_dialogContent) {
            QDomElement element = child.toElement();
            record.dialogs.emplace_back().loadFromManifest(element);
        } else if (name == k_languageContent) {
            PrivateRecord::of(record.languages.emplace_back()).loadFromManifest(child);
        }
    }
}

struct Section
{
    const QString& name;
    void (*read)(const QDomNode& container, PackageInfo& package);
};

const Section k_sections[] = {
    {k_names, readNames},
    {k_descriptions, readDescriptions},
    {k_services, readServices},
    {k_executableFiles, readExecutableFiles},
    {k_requirements, readRequirements},
    {k_supportedLanguages, readSupportedLanguages},
    {k_descriptionLanguages, readDescriptionLanguages},
    {k_contents, readContents},
};

void readRootAttributes(const QDomElement& root, PackageInfo& package)
{
    package.setUuid(xml::attribute(root, k_uuid));
    package.setVersion(xml::attribute(root, k_version));
    package.setAuthor(xml::attribute(root, k_author));
    package.setOrganization(xml::attribute(root, k_organization));
    package.setDate(xml::attribute(root, k_date));
    package.setTypeVersion(xml::attribute(root, k_typeVersion));
    package.setChannel(xml::attribute(root, k_channel));
    package.setInstallOnlyAtStartup(xml::flag(root, k_installOnlyAtStartup));
}

void fill(PackageInfo& package, const QDomDocument& document)
{
    const QDomElement root = document.documentElement();
    readRootAttributes(root, package);
    for (const QDomNode& child : xml::children(root))
        for (const Section& section : k_sections)
            if (child.nodeName() == section.name)
                section.read(child, package);
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
    fill(*this, std::get<QDomDocument>(result));
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
    fill(*this, std::get<QDomDocument>(result));
    return true;
}

bool PackageInfo::loadFromManifestFile(const std::string& path)
{
    QFile file(xml::fromUtf8(path));
    return loadFromManifestFile(file);
}

} // namespace zu
