#include "manifest/package_elements_reader.hpp"

#include "manifest/package_log.hpp"

#include <algorithm>

namespace zupackage {

using namespace names;

void readSections(xml::Node root, std::initializer_list<Section> sections)
{
    for (const xml::Node child : root.children()) {
        // A processing instruction may have the name of a section.
        if (!child.isElement())
            continue;
        const auto section = std::find_if(sections.begin(), sections.end(),
                                          [name = child.name()](const Section& s) { return s.name == name; });
        if (section != sections.end())
            section->read(child);
    }
}

void readService(xml::Node element, zu::PackageService& service)
{
    service.execStart = element.attribute(k_execStart);
    service.name = element.attribute(k_name);
    service.autoRun = element.flag(k_autorun);
    for (const xml::Node child : element.children()) {
        if (child.name() != k_envVar)
            continue;
        const std::string name = child.attribute(k_name);
        if (!service.envVars.emplace(name, child.attribute(k_value)).second)
            zu::log::write(packageInfoCategory(), zu::log::Level::Warning,
                           packageInfoOrigin("zu::_fillPackageService", __LINE__),
                           [&name] { return name + " assignement skipped because it has already been set"; });
    }
}

zu::RobotRequirement readRobotRequirement(xml::Node element)
{
    return {element.attribute(k_model), element.attribute(k_minHeadVersion), element.attribute(k_maxHeadVersion),
            element.attribute(k_minBodyVersion), element.attribute(k_maxBodyVersion)};
}

zu::MorvoRequirement readMorvoRequirement(xml::Node element)
{
    return {element.attribute(k_minVersion), element.attribute(k_maxVersion)};
}

} // namespace zupackage
