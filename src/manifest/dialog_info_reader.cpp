#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/nodes.hpp"

#include <QtXml/QDomElement>

namespace zupackage {

namespace {

void fill(zu::DialogInfoPrivate& record, const QDomNode& element)
{
    using namespace names;
    record.topicName = xml::attribute(element, k_topicName);
    record.typeVersion = xml::attribute(element, k_typeVersion);
    for (const QDomNode& child : xml::children(element))
        if (xml::name(child) == k_topic)
            record.topics[xml::attribute(child, k_language)] = xml::attribute(child, k_path);
}

} // namespace

} // namespace zupackage

namespace zu {

bool DialogInfo::loadFromManifest(QDomElement& element)
{
    zupackage::fill(*m_p, element);
    return true;
}

} // namespace zu
