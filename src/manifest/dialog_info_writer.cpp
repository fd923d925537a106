#include "manifest/manifest_names.hpp"
#include "records/dialog_info_p.hpp"
#include "xml/append.hpp"

namespace zupackage {

namespace {

void append(QDomDocument& document, QDomNode& parent, const zu::DialogInfoPrivate& record)
{
    using namespace names;
    QDomElement element = xml::appendElement(document, parent, k_dialogContent);
    xml::setAttribute(element, k_topicName, record.topicName);
    xml::setAttribute(element, k_typeVersion, record.typeVersion);
    for (const auto& [lang, path] : record.topics) {
        if (lang.empty() || path.empty())
            continue;
        QDomElement topic = xml::appendElement(document, element, k_topic);
        xml::setAttribute(topic, k_language, lang);
        xml::setAttribute(topic, k_path, path);
    }
}

} // namespace

} // namespace zupackage

namespace zu {

void DialogInfo::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    zupackage::append(document, parent, *m_p);
}

} // namespace zu
