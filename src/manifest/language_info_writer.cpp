#include "manifest/elements_writer.hpp"
#include "manifest/manifest_names.hpp"
#include "records/language_info_p.hpp"

namespace zupackage {

void writeLanguage(xml::TextWriter& out, const zu::LanguageInfoPrivate& language)
{
    using namespace names;
    out.startElement(k_languageContent);
    out.attribute(k_path, language.path);
    out.startElement(k_engine);
    out.attribute(k_name, language.engineName);
    out.attribute(k_version, language.engineVersion);
    out.endElement();
    writeTextElement(out, k_locale, language.locale);
    writeTexts(out, {k_names, k_name, k_lang}, language.langToName);
    out.endElement();
}

} // namespace zupackage
