#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "xml/append.hpp"
#include "xml/characters.hpp"
#include "xml/nodes.hpp"

namespace zu {

void BehaviorInfoPrivate::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    using namespace xml::names;
    QDomElement element = xml::appendElement(document, parent, k_behaviorContent);
    xml::setAttribute(element, k_path, path);
    if (userRequestable)
        xml::appendElement(document, element, k_userRequestable);
    QDomElement natureElement = xml::appendElement(document, element, k_nature);
    xml::appendText(document, natureElement, nature);
    xml::appendLangMap(document, element, langToName, k_names, k_name, k_lang);
    xml::appendLangMap(document, element, langToDesc, k_descriptions, k_description, k_lang);
    xml::appendLangListMap(document, element, langToTags, k_tags, k_tag, k_lang, false);
    xml::appendLangListMap(document, element, langToTriggerSentences, k_triggerSentences, k_sentence, k_lang, false);
    xml::appendLangListMap(document, element, langToLoadingResponses, k_loadingResponses, k_sentence, k_lang, false);
    xml::appendLangListMap(document, element, purposeToCondition, k_autonomous, k_condition, k_purpose, true);

    QDomElement permissionsElement = xml::appendElement(document, element, k_permissions);
    for (const std::string& permission : permissions) {
        const QString name = xml::fromUtf8(permission);
        // Not every door into the record checks permissions as addPermission() does.
        if (xml::isElementName(name))
            xml::appendElement(document, permissionsElement, name);
    }
}

} // namespace zu
