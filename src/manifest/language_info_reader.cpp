#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"
#include "xml/nodes.hpp"

namespace zupackage {

namespace {

void fill(zu::LanguageInfoPrivate& record, xml::Node element)
{
    using namespace names;
    record.path = element.attribute(k_path);
    for (const xml::Node child : element.children()) {
        const std::string_view name = child.name();
        if (name == k_names) {
            xml::readTexts(child, k_lang, record.langToName);
        } else if (name == k_engine) {
            record.engineName = child.attribute(k_name);
            record.engineVersion = child.attribute(k_version);
        } else if (name == k_locale) {
            record.locale = child.text();
        }
    }
}

} // namespace

} // namespace zupackage

namespace zu {

bool LanguageInfoPrivate::loadFromManifest(zupackage::xml::Node element)
{
    zupackage::fill(*this, element);
    return true;
}

} // namespace zu
