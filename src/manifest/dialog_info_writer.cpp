#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/append.hpp"

namespace zu {

void DialogInfo::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    using namespace xml::names;
    QDomElement element = xml::appendElement(document, parent, k_dialogContent);
    xml::setAttribute(element, k_topicName, m_p->topicName);
    xml::setAttribute(element, k_typeVersion, m_p->typeVersion);
    for (const auto& [lang, path] : m_p->topics) {
        if (lang.empty() || path.empty())
            continue;
        QDomElement topic = xml::appendElement(document, element, k_topic);
        xml::setAttribute(topic, k_language, lang);
        xml::setAttribute(topic, k_path, path);
    }
}

} // namespace zu
