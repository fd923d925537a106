#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "xml/nodes.hpp"

namespace zu {

namespace {

using Adder = void (BehaviorInfo::*)(const std::string& value, const std::string& key);

/// Every child node of the container adds its text under its attribute `keyName`.
void addTexts(BehaviorInfo& behavior, Adder add, const QDomNode& container, const QString& keyName)
{
    for (const QDomNode& child : xml::children(container))
        (behavior.*add)(xml::text(child), xml::attribute(child, keyName));
}

void addPermissions(BehaviorInfo& behavior, const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container))
        behavior.addPermission(xml::toUtf8(child.nodeName()));
}

} // namespace

bool BehaviorInfoPrivate::loadFromManifest(const QDomNode& element)
{
    using namespace xml::names;
    path = xml::attribute(element, k_path);
    for (const QDomNode& child : xml::children(element)) {
        const QString name = child.nodeName();
        if (name == k_userRequestable)
            userRequestable = true;
        else if (name == k_names)
            xml::readTexts(child, k_lang, langToName);
        else if (name == k_descriptions)
            xml::readTexts(child, k_lang, langToDesc);
        else if (name == k_tags)
            addTexts(*owner, &BehaviorInfo::addTag, child, k_lang);
        else if (name == k_nature)
            nature = xml::text(child);
        else if (name == k_triggerSentences)
            addTexts(*owner, &BehaviorInfo::addTriggerSentence, child, k_lang);
        else if (name == k_loadingResponses)
            addTexts(*owner, &BehaviorInfo::addLoadingResponse, child, k_lang);
        else if (name == k_autonomous)
            addTexts(*owner, &BehaviorInfo::addCondition, child, k_purpose);
        else if (name == k_permissions)
            addPermissions(*owner, child);
    }
    return true;
}

} // namespace zu
