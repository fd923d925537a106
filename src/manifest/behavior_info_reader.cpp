#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "records/permissions.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

/// Every child node of the container adds its text to the list under its attribute `keyName`.
void appendTexts(std::map<std::string, std::list<std::string>>& texts, xml::Node container, std::string_view keyName)
{
    for (const xml::Node child : container.children())
        texts[child.attribute(keyName)].push_back(child.text());
}

void addPermissions(std::list<std::string>& permissions, xml::Node container)
{
    for (const xml::Node child : container.children())
        addPermission(permissions, std::string(child.name()));
}

void fill(zu::BehaviorInfoPrivate& record, xml::Node element)
{
    using namespace names;
    record.path = element.attribute(k_path);
    for (const xml::Node child : element.children()) {
        const std::string_view name = child.name();
        if (name == k_userRequestable)
            record.userRequestable = true;
        else if (name == k_names)
            xml::readTexts(child, k_lang, record.langToName);
        else if (name == k_descriptions)
            xml::readTexts(child, k_lang, record.langToDesc);
        else if (name == k_tags)
            appendTexts(record.langToTags, child, k_lang);
        else if (name == k_nature)
            record.nature = child.text();
        else if (name == k_triggerSentences)
            appendTexts(record.langToTriggerSentences, child, k_lang);
        else if (name == k_loadingResponses)
            appendTexts(record.langToLoadingResponses, child, k_lang);
        else if (name == k_autonomous)
            appendTexts(record.purposeToCondition, child, k_purpose);
        else if (name == k_permissions)
            addPermissions(record.permissions, child);
    }
}

} // namespace

} // namespace zupackage

namespace zu {

bool BehaviorInfoPrivate::loadFromManifest(zupackage::xml::Node element)
{
    zupackage::fill(*this, element);
    return true;
}

} // namespace zu
