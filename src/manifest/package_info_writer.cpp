#include "manifest/manifest_names.hpp"
#include "manifest/root_attributes.hpp"
#include "records/behavior_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/append.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>
#include <QtCore/QTextStream>

namespace zupackage {

namespace {

using namespace names;

void setRootAttributes(QDomElement& root, const zu::PackageInfoPrivate& package)
{
    for (const auto& attribute : k_rootAttributes<zu::PackageInfoPrivate>)
        xml::setNonEmptyAttribute(root, attribute.name, package.*attribute.field);
    xml::setFlag(root, k_installOnlyAtStartup, package.installOnlyAtStartup);
}

void appendLanguages(QDomDocument& document, QDomElement& root, const std::list<std::string>& languages,
                     std::string_view containerName)
{
    if (languages.empty())
        return;
    QDomElement container = xml::appendElement(document, root, containerName);
    for (const std::string& lang : languages) {
        QDomElement child = xml::appendElement(document, container, k_language);
        xml::appendText(document, child, lang);
    }
}

void appendContents(QDomDocument& document, QDomElement& root, const zu::PackageInfoPrivate& package)
{
    QDomElement contents = xml::appendElement(document, root, k_contents);
    for (const zu::BehaviorInfo& behavior : package.behaviors)
        zu::PrivateRecord::of(behavior).saveToManifest(document, contents);
    for (const zu::DialogInfo& dialog : package.dialogs)
        dialog.saveToManifest(document, contents);
    for (const zu::LanguageInfo& language : package.languages)
        zu::PrivateRecord::of(language).saveToManifest(document, contents);
}

void appendRequirements(QDomDocument& document, QDomElement& root, const zu::PackageInfoPrivate& package)
{
    if (package.morvoRequirements.empty() && package.robotRequirements.empty())
        return;
    QDomElement requirements = xml::appendElement(document, root, k_requirements);
    for (const zu::MorvoRequirement& morvo : package.morvoRequirements) {
        QDomElement element = xml::appendElement(document, requirements, k_morvoRequirement);
        xml::setNonEmptyAttribute(element, k_minVersion, morvo.minVersion);
        xml::setNonEmptyAttribute(element, k_maxVersion, morvo.maxVersion);
    }
    for (const zu::RobotRequirement& robot : package.robotRequirements) {
        QDomElement element = xml::appendElement(document, requirements, k_robotRequirement);
        xml::setNonEmptyAttribute(element, k_model, robot.model);
        xml::setNonEmptyAttribute(element, k_minHeadVersion, robot.minHeadVersion);
        xml::setNonEmptyAttribute(element, k_maxHeadVersion, robot.maxHeadVersion);
        xml::setNonEmptyAttribute(element, k_minBodyVersion, robot.minBodyVersion);
        xml::setNonEmptyAttribute(element, k_maxBodyVersion, robot.maxBodyVersion);
    }
}

void appendService(QDomDocument& document, QDomElement& services, const zu::PackageService& service)
{
    QDomElement element = xml::appendElement(document, services, k_service);
    xml::setFlag(element, k_autorun, service.autoRun);
    xml::setNonEmptyAttribute(element, k_name, service.name);
    xml::setNonEmptyAttribute(element, k_execStart, service.execStart);
    for (const auto& [name, value] : service.envVars) {
        QDomElement envVar = xml::appendElement(document, element, k_envVar);
        xml::setNonEmptyAttribute(envVar, k_name, name);
        xml::setNonEmptyAttribute(envVar, k_value, value);
    }
}

void appendServices(QDomDocument& document, QDomElement& root, const zu::PackageInfoPrivate& package)
{
    if (package.services.empty())
        return;
    QDomElement services = xml::appendElement(document, root, k_services);
    for (const zu::PackageService& service : package.services)
        appendService(document, services, service);
}

void appendExecutableFiles(QDomDocument& document, QDomElement& root, const zu::PackageInfoPrivate& package)
{
    if (package.executableFiles.empty())
        return;
    QDomElement files = xml::appendElement(document, root, k_executableFiles);
    for (const std::string& path : package.executableFiles) {
        QDomElement file = xml::appendElement(document, files, k_file);
        xml::setNonEmptyAttribute(file, k_path, path);
    }
}

QDomDocument documentOf(const zu::PackageInfoPrivate& package)
{
    QDomDocument document;
    document.appendChild(
        document.createProcessingInstruction(QStringLiteral("xml"), QStringLiteral("version='1.0' encoding='UTF-8'")));
    QDomElement root = xml::appendElement(document, document, k_package);
    setRootAttributes(root, package);
    xml::appendLangMap(document, root, package.langToName, k_names, k_name, k_lang);
    xml::appendLangMap(document, root, package.langToDesc, k_descriptions, k_description, k_lang);
    appendLanguages(document, root, package.supportedLanguages, k_supportedLanguages);
    appendLanguages(document, root, package.descriptionLanguages, k_descriptionLanguages);
    appendContents(document, root, package);
    appendRequirements(document, root, package);
    appendServices(document, root, package);
    appendExecutableFiles(document, root, package);
    return document;
}

} // namespace

} // namespace zupackage

namespace zu {

// Not const: callers are built against this signature.
std::string PackageInfo::saveToManifestContent()
{
    return zupackage::xml::toUtf8(zupackage::documentOf(*m_p).toString(1));
}

bool PackageInfo::saveToManifestFile(QFile& file) const
{
    const QDomDocument document = zupackage::documentOf(*m_p);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    {
        QTextStream stream(&file);
        // The locale's codec would write what it cannot encode as references, of surrogates even.
        stream.setCodec("UTF-8");
        document.save(stream, 2, QDomNode::EncodingFromTextStream);
    }
    file.close();
    return true;
}

bool PackageInfo::saveToManifestFile(const std::string& path) const
{
    QFile file(zupackage::xml::fromUtf8(path));
    return saveToManifestFile(file);
}

} // namespace zu
