#include "manifest/package_info_writer.hpp"

#include "manifest/elements_writer.hpp"
#include "manifest/manifest_names.hpp"
#include "manifest/root_attributes.hpp"
#include "records/package_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/nodes.hpp"

#include <QtCore/QFile>

namespace zupackage {

namespace {

using namespace names;

void writeRootAttributes(xml::TextWriter& out, const zu::PackageInfoPrivate& package)
{
    for (const auto& attribute : k_rootAttributes<zu::PackageInfoPrivate>)
        writeNonEmptyAttribute(out, attribute.name, package.*attribute.field);
    writeFlag(out, k_installOnlyAtStartup, package.installOnlyAtStartup);
}

void writeLanguageCodes(xml::TextWriter& out, std::string_view containerName, const std::list<std::string>& languages)
{
    if (languages.empty())
        return;
    out.startElement(containerName);
    for (const std::string& lang : languages)
        writeTextElement(out, k_language, lang);
    out.endElement();
}

void writeContents(xml::TextWriter& out, const zu::PackageInfoPrivate& package)
{
    out.startElement(k_contents);
    for (const zu::BehaviorInfo& behavior : package.behaviors)
        writeBehavior(out, zu::PrivateRecord::of(behavior));
    for (const zu::DialogInfo& dialog : package.dialogs)
        writeDialog(out, zu::PrivateRecord::of(dialog));
    for (const zu::LanguageInfo& language : package.languages)
        writeLanguage(out, zu::PrivateRecord::of(language));
    out.endElement();
}

void writeRequirements(xml::TextWriter& out, const zu::PackageInfoPrivate& package)
{
    if (package.morvoRequirements.empty() && package.robotRequirements.empty())
        return;
    out.startElement(k_requirements);
    for (const zu::MorvoRequirement& morvo : package.morvoRequirements) {
        out.startElement(k_morvoRequirement);
        writeNonEmptyAttribute(out, k_minVersion, morvo.minVersion);
        writeNonEmptyAttribute(out, k_maxVersion, morvo.maxVersion);
        out.endElement();
    }
    for (const zu::RobotRequirement& robot : package.robotRequirements) {
        out.startElement(k_robotRequirement);
        writeNonEmptyAttribute(out, k_model, robot.model);
        writeNonEmptyAttribute(out, k_minHeadVersion, robot.minHeadVersion);
        writeNonEmptyAttribute(out, k_maxHeadVersion, robot.maxHeadVersion);
        writeNonEmptyAttribute(out, k_minBodyVersion, robot.minBodyVersion);
        writeNonEmptyAttribute(out, k_maxBodyVersion, robot.maxBodyVersion);
        out.endElement();
    }
    out.endElement();
}

void writeService(xml::TextWriter& out, const zu::PackageService& service)
{
    out.startElement(k_service);
    writeFlag(out, k_autorun, service.autoRun);
    writeNonEmptyAttribute(out, k_name, service.name);
    writeNonEmptyAttribute(out, k_execStart, service.execStart);
    for (const auto& [name, value] : service.envVars) {
        out.startElement(k_envVar);
        writeNonEmptyAttribute(out, k_name, name);
        writeNonEmptyAttribute(out, k_value, value);
        out.endElement();
    }
    out.endElement();
}

void writeServices(xml::TextWriter& out, const std::list<zu::PackageService>& services)
{
    if (services.empty())
        return;
    out.startElement(k_services);
    for (const zu::PackageService& service : services)
        writeService(out, service);
    out.endElement();
}

void writeExecutableFiles(xml::TextWriter& out, const std::list<std::string>& paths)
{
    if (paths.empty())
        return;
    out.startElement(k_executableFiles);
    for (const std::string& path : paths) {
        out.startElement(k_file);
        writeNonEmptyAttribute(out, k_path, path);
        out.endElement();
    }
    out.endElement();
}

std::string documentOf(const zu::PackageInfoPrivate& package, xml::TextWriter out)
{
    out.startElement(k_package);
    writeRootAttributes(out, package);
    writeTexts(out, {k_names, k_name, k_lang}, package.langToName);
    writeTexts(out, {k_descriptions, k_description, k_lang}, package.langToDesc);
    writeLanguageCodes(out, k_supportedLanguages, package.supportedLanguages);
    writeLanguageCodes(out, k_descriptionLanguages, package.descriptionLanguages);
    writeContents(out, package);
    writeRequirements(out, package);
    writeServices(out, package.services);
    writeExecutableFiles(out, package.executableFiles);
    out.endElement();
    return out.takeDocument();
}

// Programs compare manifests byte by byte, so that neither the quotes nor the blanks become the same.

std::string textOf(const zu::PackageInfoPrivate& package)
{
    return documentOf(package, xml::TextWriter("<?xml version='1.0' encoding='UTF-8'?>", 1));
}

} // namespace

std::string manifestFileOf(const zu::PackageInfoPrivate& package)
{
    return documentOf(package, xml::TextWriter(R"(<?xml version="1.0" encoding="UTF-8"?>)", 2));
}

} // namespace zupackage

namespace zu {

// Not const: callers are built against this signature.
std::string PackageInfo::saveToManifestContent() { return zupackage::textOf(*m_p); }

bool PackageInfo::saveToManifestFile(QFile& file) const
{
    const std::string content = zupackage::manifestFileOf(*m_p);
    if (!file.open(QIODevice::WriteOnly))
        return false;
    file.write(content.data(), static_cast<qint64>(content.size()));
    file.close();
    return true;
}

bool PackageInfo::saveToManifestFile(const std::string& path) const
{
    QFile file(zupackage::xml::fromUtf8(path));
    return saveToManifestFile(file);
}

} // namespace zu
