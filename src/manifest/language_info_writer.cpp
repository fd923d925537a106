#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"
#include "xml/append.hpp"

namespace zupackage {

namespace {

void append(QDomDocument& document, QDomNode& parent, const zu::LanguageInfoPrivate& record)
{
    using namespace names;
    QDomElement element = xml::appendElement(document, parent, k_languageContent);
    xml::setAttribute(element, k_path, record.path);
    QDomElement engine = xml::appendElement(document, element, k_engine);
    xml::setAttribute(engine, k_name, record.engineName);
    xml::setAttribute(engine, k_version, record.engineVersion);
    QDomElement locale = xml::appendElement(document, element, k_locale);
    xml::appendText(document, locale, record.locale);
    xml::appendLangMap(document, element, record.langToName, k_names, k_name, k_lang);
}

} // namespace

} // namespace zupackage

namespace zu {

void LanguageInfoPrivate::saveToManifest(QDomDocument& document, QDomNode& parent) const
{
    zupackage::append(document, parent, *this);
}

} // namespace zu
