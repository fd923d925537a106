#pragma once

#include "manifest/manifest_names.hpp"
#include "manifest/root_attributes.hpp"
#include "records/behavior_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info.hpp>

#include <QtXml/QDomElement>

#include <functional>
#include <vector>

/// What the readers of both package models have in common. Containers may be lists or vectors; what is read is appended.
namespace zupackage {

/// What reads the elements under the document's root that have this name.
struct Section
{
    std::string_view name;
    std::function<void(const QDomNode& element)> read;
};

/// Reads each element under the document's root by the first section of its name, in document order. Others are passed
/// over, and so are nodes of other kinds.
void readSections(const QDomNode& root, const std::vector<Section>& sections);

/// Reads a "service" element into a fresh service. The first value of a repeated "envVar" name stays, with a warning
/// for each repetition.
void readService(const QDomNode& element, zu::PackageService& service);

zu::RobotRequirement readRobotRequirement(const QDomNode& element);
zu::MorvoRequirement readMorvoRequirement(const QDomNode& element);

/// Sets the fields that are the attributes of the document's root.
template <class Package>
void readRootAttributes(const QDomNode& root, Package& package)
{
    for (const RootAttribute<Package>& attribute : k_rootAttributes<Package>)
        package.*attribute.field = xml::attribute(root, attribute.name);
    package.installOnlyAtStartup = xml::flag(root, names::k_installOnlyAtStartup);
}

template <class Services>
void readServices(const QDomNode& container, Services& services)
{
    for (const QDomNode& child : xml::children(container))
        if (xml::name(child) == names::k_service)
            readService(child, services.emplace_back());
}

template <class Paths>
void readExecutableFiles(const QDomNode& container, Paths& paths)
{
    for (const QDomNode& child : xml::children(container))
        if (xml::name(child) == names::k_file)
            paths.push_back(xml::attribute(child, names::k_path));
}

template <class RobotRequirements, class MorvoRequirements>
void readRequirements(const QDomNode& container, RobotRequirements& robots, MorvoRequirements& morvos)
{
    for (const QDomNode& child : xml::children(container)) {
        if (xml::name(child) == names::k_robotRequirement)
            robots.push_back(readRobotRequirement(child));
        else if (xml::name(child) == names::k_morvoRequirement)
            morvos.push_back(readMorvoRequirement(child));
    }
}

/// Reads the behaviors, dialogs and speech languages of "contents".
template <class Behaviors, class Dialogs, class Languages>
void readContents(const QDomNode& container, Behaviors& behaviors, Dialogs& dialogs, Languages& languages)
{
    for (const QDomNode& child : xml::children(container)) {
        const std::string name = xml::name(child);
        if (name == names::k_behaviorContent) {
            zu::PrivateRecord::of(behaviors.emplace_back()).loadFromManifest(child);
        } else if (name == names::k_dialogContent) {
            QDomElement element = child.toElement();
            dialogs.emplace_back().loadFromManifest(element);
        } else if (name == names::k_languageContent) {
            zu::PrivateRecord::of(languages.emplace_back()).loadFromManifest(child);
        }
    }
}

} // namespace zupackage
