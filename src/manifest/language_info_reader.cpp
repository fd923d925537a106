#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

void fill(zu::LanguageInfoPrivate& record, const QDomNode& element)
{
    using namespace names;
    record.path = xml::attribute(element, k_path);
    for (const QDomNode& child : xml::children(element)) {
        const std::string name = xml::name(child);
        if (name == k_names) {
            xml::readTexts(child, k_lang, record.langToName);
        } else if (name == k_engine) {
            record.engineName = xml::attribute(child, k_name);
            record.engineVersion = xml::attribute(child, k_version);
        } else if (name == k_locale) {
            record.locale = xml::text(child);
        }
    }
}

} // namespace

} // namespace zupackage

namespace zu {

bool LanguageInfoPrivate::loadFromManifest(const QDomNode& element)
{
    zupackage::fill(*this, element);
    return true;
}

} // namespace zu
