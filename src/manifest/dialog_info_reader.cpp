#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/nodes.hpp"

#include <QtXml/QDomElement>

namespace zu {

bool DialogInfo::loadFromManifest(QDomElement& element)
{
    using namespace xml::names;
    m_p->topicName = xml::attribute(element, k_topicName);
    m_p->typeVersion = xml::attribute(element, k_typeVersion);
    for (const QDomNode& child : xml::children(element))
        if (child.nodeName() == k_topic)
            m_p->topics[xml::attribute(child, k_language)] = xml::attribute(child, k_path);
    return true;
}

} // namespace zu
