#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"
#include "xml/append.hpp"

namespace zu {

void LanguageInfoPrivate::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    using namespace xml::names;
    QDomElement element = xml::appendElement(document, parent, k_languageContent);
    xml::setAttribute(element, k_path, path);
    QDomElement engine = xml::appendElement(document, element, k_engine);
    xml::setAttribute(engine, k_name, engineName);
    xml::setAttribute(engine, k_version, engineVersion);
    QDomElement localeElement = xml::appendElement(document, element, k_locale);
    xml::appendText(document, localeElement, locale);
    xml::appendLangMap(document, element, langToName, k_names, k_name, k_lang);
}

} // namespace zu
