#include "manifest/package_elements_reader.hpp"

#include "manifest/package_log.hpp"

namespace zu {

using namespace xml::names;

void readSections(const QDomNode& root, const std::vector<Section>& sections)
{
    for (const QDomNode& child : xml::children(root))
        for (const Section& section : sections)
            if (child.isElement() && child.nodeName() == section.name)
                section.read(child);
}

void readService(const QDomNode& element, PackageService& service)
{
    service.execStart = xml::attribute(element, k_execStart);
    service.name = xml::attribute(element, k_name);
    service.autoRun = xml::flag(element, k_autorun);
    for (const QDomNode& child : xml::children(element)) {
        if (child.nodeName() != k_envVar)
            continue;
        const std::string name = xml::attribute(child, k_name);
        if (!service.envVars.emplace(name, xml::attribute(child, k_value)).second)
            log::write(packageInfoCategory(), log::Level::Warning,
                       packageInfoOrigin("zu::_fillPackageService", __LINE__),
                       [&name] { return name + " assignement skipped because it has already been set"; });
    }
}

RobotRequirement readRobotRequirement(const QDomNode& element)
{
    return {xml::attribute(element, k_model), xml::attribute(element, k_minHeadVersion),
            xml::attribute(element, k_maxHeadVersion), xml::attribute(element, k_minBodyVersion),
            xml::attribute(element, k_maxBodyVersion)};
}

MorvoRequirement readMorvoRequirement(const QDomNode& element)
{
    return {xml::attribute(element, k_minVersion), xml::attribute(element, k_maxVersion)};
}

} // namespace zu
