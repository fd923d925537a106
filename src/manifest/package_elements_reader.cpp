#include "manifest/package_elements_reader.hpp"

#include "manifest/package_log.hpp"

#include <algorithm>

namespace zupackage {

using namespace names;

void readSections(const QDomNode& root, const std::vector<Section>& sections)
{
    for (const QDomNode& child : xml::children(root)) {
        // A processing instruction may have the name of a section.
        if (!child.isElement())
            continue;
        const auto section = std::find_if(sections.begin(), sections.end(),
                                          [name = xml::name(child)](const Section& s) { return s.name == name; });
        if (section != sections.end())
            section->read(child);
    }
}

void readService(const QDomNode& element, zu::PackageService& service)
{
    service.execStart = xml::attribute(element, k_execStart);
    service.name = xml::attribute(element, k_name);
    service.autoRun = xml::flag(element, k_autorun);
    for (const QDomNode& child : xml::children(element)) {
        if (xml::name(child) != k_envVar)
            continue;
        const std::string name = xml::attribute(child, k_name);
        if (!service.envVars.emplace(name, xml::attribute(child, k_value)).second)
            zu::log::write(packageInfoCategory(), zu::log::Level::Warning,
                           packageInfoOrigin("zu::_fillPackageService", __LINE__),
                           [&name] { return name + " assignement skipped because it has already been set"; });
    }
}

zu::RobotRequirement readRobotRequirement(const QDomNode& element)
{
    return {xml::attribute(element, k_model), xml::attribute(element, k_minHeadVersion),
            xml::attribute(element, k_maxHeadVersion), xml::attribute(element, k_minBodyVersion),
            xml::attribute(element, k_maxBodyVersion)};
}

zu::MorvoRequirement readMorvoRequirement(const QDomNode& element)
{
    return {xml::attribute(element, k_minVersion), xml::attribute(element, k_maxVersion)};
}

} // namespace zupackage
