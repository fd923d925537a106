#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "records/permissions.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

/// Every child node of the container adds its text to the list under its attribute `keyName`.
void appendTexts(std::map<std::string, std::list<std::string>>& texts, const QDomNode& container,
                 std::string_view keyName)
{
    for (const QDomNode& child : xml::children(container))
        texts[xml::attribute(child, keyName)].push_back(xml::text(child));
}

void addPermissions(std::list<std::string>& permissions, const QDomNode& container)
{
    for (const QDomNode& child : xml::children(container))
        addPermission(permissions, xml::name(child));
}

void fill(zu::BehaviorInfoPrivate& record, const QDomNode& element)
{
    using namespace names;
    record.path = xml::attribute(element, k_path);
    for (const QDomNode& child : xml::children(element)) {
        const std::string name = xml::name(child);
        if (name == k_userRequestable)
            record.userRequestable = true;
        else if (name == k_names)
            xml::readTexts(child, k_lang, record.langToName);
        else if (name == k_descriptions)
            xml::readTexts(child, k_lang, record.langToDesc);
        else if (name == k_tags)
            appendTexts(record.langToTags, child, k_lang);
        else if (name == k_nature)
            record.nature = xml::text(child);
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

bool BehaviorInfoPrivate::loadFromManifest(const QDomNode& element)
{
    zupackage::fill(*this, element);
    return true;
}

} // namespace zu
