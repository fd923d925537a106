#include "site/package_page.hpp"

namespace zu::cli {

namespace {

/// "1.0 to 2.0", "1.0 or later", "up to 2.0", "any".
std::string rangeOf(const std::string& least, const std::string& most)
{
    if (least.empty())
        return most.empty() ? "any" : "up to " + most;
    return most.empty() ? least + " or later" : least + " to " + most;
}

Html tableStart(std::string_view caption, std::initializer_list<std::string_view> columns)
{
    Html html;
    html << "<div class=\"scroll\" role=\"group\" tabindex=\"0\" aria-label=\""_html << caption
         << "\">\n<table>\n<caption>"_html << caption << "</caption>\n<thead><tr>"_html;
    for (const std::string_view column : columns)
        html << "<th scope=\"col\">"_html << column << "</th>"_html;
    return html << "</tr></thead>\n<tbody>\n"_html;
}

constexpr Markup k_tableEnd = "</tbody>\n</table>\n</div>\n"_html;

Html tableCell(std::string_view text)
{
    Html html;
    return html << "<td><bdi>"_html << text << "</bdi></td>"_html;
}

Html rowHead(std::string_view text)
{
    Html html;
    return html << "<tr><th scope=\"row\"><bdi>"_html << text << "</bdi></th>"_html;
}

} // namespace

Html requirementsSection(const SitePackage& package, const PagePlace& place)
{
    const auto& robots = package.package.robotRequirements();
    const auto& versions = package.package.morvoRequirements();
    Html html;
    if (robots.empty() && versions.empty())
        return html;
    html << sectionStart("requirements", "Requirements", place);
    if (!robots.empty()) {
        html << tableStart("Robots", {"Model", "Head version", "Body version"});
        for (const RobotRequirement& robot : robots)
            html << rowHead(robot.model.empty() ? "any" : robot.model)
                 << tableCell(rangeOf(robot.minHeadVersion, robot.maxHeadVersion))
                 << tableCell(rangeOf(robot.minBodyVersion, robot.maxBodyVersion)) << "</tr>\n"_html;
        html << k_tableEnd;
    }
    for (const MorvoRequirement& version : versions)
        html << "<p>Middleware version: <bdi>"_html << rangeOf(version.minVersion, version.maxVersion)
             << "</bdi></p>\n"_html;
    return html << "</section>\n"_html;
}

Html servicesSection(const SitePackage& package, const PagePlace& place)
{
    Html html;
    if (package.package.services().empty() && package.package.executableFiles().empty())
        return html;
    html << sectionStart("services", "Services", place);
    if (!package.package.services().empty()) {
        html << tableStart("Services", {"Name", "Command", "Starts", "Environment"});
        for (const PackageService& service : package.package.services()) {
            html << rowHead(service.name) << "<td><code>"_html << service.execStart << "</code></td>"_html
                 << tableCell(service.autoRun ? "by itself" : "when asked to") << "<td>"_html;
            for (const auto& [name, value] : service.envVars)
                html << "<code>"_html << name << "="_html << value << "</code> "_html;
            html << "</td></tr>\n"_html;
        }
        html << k_tableEnd;
    }
    if (!package.package.executableFiles().empty()) {
        html << "<p>Files that are made executable:</p>\n<ul class=\"files\">"_html;
        for (const std::string& file : package.package.executableFiles())
            html << "<li><code>"_html << file << "</code></li>"_html;
        html << "</ul>\n"_html;
    }
    return html << "</section>\n"_html;
}

} // namespace zu::cli
