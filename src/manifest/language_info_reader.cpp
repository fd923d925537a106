#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"
#include "xml/nodes.hpp"

namespace zu {

bool LanguageInfoPrivate::loadFromManifest(const QDomNode& element)
{
    using namespace xml::names;
    path = xml::attribute(element, k_path);
    for (const QDomNode& child : xml::children(element)) {
        const QString name = child.nodeName();
        if (name == k_names) {
            xml::readTexts(child, k_lang, langToName);
        } else if (name == k_engine) {
            engineName = xml::attribute(child, k_name);
            engineVersion = xml::attribute(child, k_version);
        } else if (name == k_locale) {
            locale = xml::text(child);
        }
    }
    return true;
}

} // namespace zu
