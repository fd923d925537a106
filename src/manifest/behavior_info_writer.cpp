#include "manifest/elements_writer.hpp"
#include "manifest/manifest_names.hpp"
#include "records/behavior_info_p.hpp"
#include "xml/characters.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

using namespace names;

void writePermissions(xml::TextWriter& out, const std::list<std::string>& permissions)
{
    out.startElement(k_permissions);
    for (const std::string& permission : permissions) {
        const QString name = xml::fromUtf8(permission);
        // Not every door into the record checks permissions as addPermission() does.
        if (xml::isElementName(name))
            writeEmptyElement(out, xml::toUtf8(name));
    }
    out.endElement();
}

} // namespace

void writeBehavior(xml::TextWriter& out, const zu::BehaviorInfoPrivate& behavior)
{
    out.startElement(k_behaviorContent);
    out.attribute(k_path, behavior.path);
    if (behavior.userRequestable)
        writeEmptyElement(out, k_userRequestable);
    writeTextElement(out, k_nature, behavior.nature);
    writeTexts(out, {k_names, k_name, k_lang}, behavior.langToName);
    writeTexts(out, {k_descriptions, k_description, k_lang}, behavior.langToDesc);
    writeTextLists(out, {k_tags, k_tag, k_lang}, behavior.langToTags);
    writeTextLists(out, {k_triggerSentences, k_sentence, k_lang}, behavior.langToTriggerSentences);
    writeTextLists(out, {k_loadingResponses, k_sentence, k_lang}, behavior.langToLoadingResponses);
    writeCDataLists(out, {k_autonomous, k_condition, k_purpose}, behavior.purposeToCondition);
    writePermissions(out, behavior.permissions);
    out.endElement();
}

} // namespace zupackage
