#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "xml/append.hpp"
#include "xml/characters.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

using namespace names;

void appendPermissions(QDomDocument& document, QDomElement& behavior, const std::list<std::string>& permissions)
{
    QDomElement element = xml::appendElement(document, behavior, k_permissions);
    for (const std::string& permission : permissions)
        // Not every door into the record checks permissions as addPermission() does.
        if (xml::isElementName(xml::fromUtf8(permission)))
            xml::appendElement(document, element, permission);
}

void append(QDomDocument& document, QDomNode& parent, const zu::BehaviorInfoPrivate& record)
{
    QDomElement element = xml::appendElement(document, parent, k_behaviorContent);
    xml::setAttribute(element, k_path, record.path);
    if (record.userRequestable)
        xml::appendElement(document, element, k_userRequestable);
    QDomElement nature = xml::appendElement(document, element, k_nature);
    xml::appendText(document, nature, record.nature);
    xml::appendLangMap(document, element, record.langToName, k_names, k_name, k_lang);
    xml::appendLangMap(document, element, record.langToDesc, k_descriptions, k_description, k_lang);
    xml::appendLangListMap(document, element, record.langToTags, k_tags, k_tag, k_lang, false);
    xml::appendLangListMap(document, element, record.langToTriggerSentences, k_triggerSentences, k_sentence, k_lang,
                           false);
    xml::appendLangListMap(document, element, record.langToLoadingResponses, k_loadingResponses, k_sentence, k_lang,
                           false);
    xml::appendLangListMap(document, element, record.purposeToCondition, k_autonomous, k_condition, k_purpose, true);
    appendPermissions(document, element, record.permissions);
}

} // namespace

} // namespace zupackage

namespace zu {

void BehaviorInfoPrivate::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    zupackage::append(document, parent, *this);
}

} // namespace zu
