#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/dom_tree.hpp"
#include "xml/tree.hpp"

#include <QtXml/QDomElement>

namespace zupackage {

namespace {

void fill(zu::DialogInfoPrivate& record, xml::Node element)
{
    using namespace names;
    record.topicName = element.attribute(k_topicName);
    record.typeVersion = element.attribute(k_typeVersion);
    for (const xml::Node child : element.children())
        if (child.name() == k_topic)
            record.topics[child.attribute(k_language)] = child.attribute(k_path);
}

} // namespace

} // namespace zupackage

namespace zu {

bool DialogInfoPrivate::loadFromManifest(zupackage::xml::Node element)
{
    zupackage::fill(*this, element);
    return true;
}

bool DialogInfo::loadFromManifest(QDomElement& element)
{
    return m_p->loadFromManifest(zupackage::xml::treeOf(element).root());
}

} // namespace zu
