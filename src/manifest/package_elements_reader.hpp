#pragma once

#include "manifest/manifest_names.hpp"
#include "manifest/root_attributes.hpp"
#include "records/behavior_info_p.hpp"
#include "records/dialog_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info.hpp>

#include <functional>
#include <initializer_list>

/// What the readers of both package models have in common. Containers may be lists or vectors; what is read is
/// appended.
namespace zupackage {

/// What reads the elements under the document's root that have this name.
struct Section
{
    std::string_view name;
    std::function<void(xml::Node element)> read;
};

/// Reads each element under the document's root by the first section of its name, in document order. Others are passed
/// over, and so are nodes of other kinds.
void readSections(xml::Node root, std::initializer_list<Section> sections);

/// Reads a "service" element into a fresh service. The first value of a repeated "envVar" name stays, with a warning
/// for each repetition.
void readService(xml::Node element, zu::PackageService& service);

zu::RobotRequirement readRobotRequirement(xml::Node element);
zu::MorvoRequirement readMorvoRequirement(xml::Node element);

/// Sets the fields that are the attributes of the document's root.
template <class Package>
void readRootAttributes(xml::Node root, Package& package)
{
    for (const RootAttribute<Package>& attribute : k_rootAttributes<Package>)
        package.*attribute.field = root.attribute(attribute.name);
    package.installOnlyAtStartup = root.flag(names::k_installOnlyAtStartup);
}

template <class Services>
void readServices(xml::Node container, Services& services)
{
    for (const xml::Node child : container.children())
        if (child.name() == names::k_service)
            readService(child, services.emplace_back());
}

template <class Paths>
void readExecutableFiles(xml::Node container, Paths& paths)
{
    for (const xml::Node child : container.children())
        if (child.name() == names::k_file)
            paths.push_back(child.attribute(names::k_path));
}

template <class RobotRequirements, class MorvoRequirements>
void readRequirements(xml::Node container, RobotRequirements& robots, MorvoRequirements& morvos)
{
    for (const xml::Node child : container.children()) {
        if (child.name() == names::k_robotRequirement)
            robots.push_back(readRobotRequirement(child));
        else if (child.name() == names::k_morvoRequirement)
            morvos.push_back(readMorvoRequirement(child));
    }
}

/// Reads the behaviors, dialogs and speech languages of "contents".
template <class Behaviors, class Dialogs, class Languages>
void readContents(xml::Node container, Behaviors& behaviors, Dialogs& dialogs, Languages& languages)
{
    for (const xml::Node child : container.children()) {
        const std::string_view name = child.name();
        if (name == names::k_behaviorContent)
            zu::PrivateRecord::of(behaviors.emplace_back()).loadFromManifest(child);
        else if (name == names::k_dialogContent)
            zu::PrivateRecord::of(dialogs.emplace_back()).loadFromManifest(child);
        else if (name == names::k_languageContent)
            zu::PrivateRecord::of(languages.emplace_back()).loadFromManifest(child);
    }
}

} // namespace zupackage
