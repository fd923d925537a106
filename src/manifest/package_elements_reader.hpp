#pragma once

#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "records/language_info_p.hpp"
#include "records/private_record.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info.hpp>

#include <QtXml/QDomElement>

#include <functional>
#include <vector>

/// What the readers of both package models have in common. Containers may be lists or vectors; what is read is appended.
namespace zu {

/// What reads the elements under the document's root that have this name.
struct Section
{
    const QString& name;
    std::function<void(const QDomNode& element)> read;
};

/// Reads each element under the document's root by the section of its name, in document order. Others are passed over,
/// and so are nodes of other kinds: a processing instruction may have the name of a section.
void readSections(const QDomNode& root, const std::vector<Section>& sections);

/// Reads a "service" element into a fresh service. The first value of a repeated "envVar" name stays, with a warning
/// for each repetition.
void readService(const QDomNode& element, PackageService& service);

RobotRequirement readRobotRequirement(const QDomNode& element);
MorvoRequirement readMorvoRequirement(const QDomNode& element);

/// Sets the fields that are the attributes of the document's root.
template <class Package>
void readRootAttributes(const QDomNode& root, Package& package)
{
    using namespace xml::names;
    package.uuid = xml::attribute(root, k_uuid);
    package.version = xml::attribute(root, k_version);
    package.author = xml::attribute(root, k_author);
    package.organization = xml::attribute(root, k_organization);
    package.date = xml::attribute(root, k_date);
    package.typeVersion = xml::attribute(root, k_typeVersion);
    package.channel = xml::attribute(root, k_channel);
    package.installOnlyAtStartup = xml::flag(root, k_installOnlyAtStartup);
}

template <class Services>
void readServices(const QDomNode& container, Services& services)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == xml::names::k_service)
            readService(child, services.emplace_back());
}

template <class Paths>
void readExecutableFiles(const QDomNode& container, Paths& paths)
{
    for (const QDomNode& child : xml::children(container))
        if (child.nodeName() == xml::names::k_file)
            paths.push_back(xml::attribute(child, xml::names::k_path));
}

template <class RobotRequirements, class MorvoRequirements>
void readRequirements(const QDomNode& container, RobotRequirements& robots, MorvoRequirements& morvos)
{
    for (const QDomNode& child : xml::children(container)) {
        if (child.nodeName() == xml::names::k_robotRequirement)
            robots.push_back(readRobotRequirement(child));
        else if (child.nodeName() == xml::names::k_morvoRequirement)
            morvos.push_back(readMorvoRequirement(child));
    }
}

/// Reads the behaviors, dialogs and speech languages of "contents".
template <class Behaviors, class Dialogs, class Languages>
void readContents(const QDomNode& container, Behaviors& behaviors, Dialogs& dialogs, Languages& languages)
{
    for (const QDomNode& child : xml::children(container)) {
        const QString name = child.nodeName();
        if (name == xml::names::k_behaviorContent) {
            PrivateRecord::of(behaviors.emplace_back()).loadFromManifest(child);
        } else if (name == xml::names::k_dialogContent) {
            QDomElement element = child.toElement();
            dialogs.emplace_back().loadFromManifest(element);
        } else if (name == xml::names::k_languageContent) {
            PrivateRecord::of(languages.emplace_back()).loadFromManifest(child);
        }
    }
}

} // namespace zu
