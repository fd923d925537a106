#include "records/language_info_p.hpp"
#include "wire/wire_form.hpp"

namespace zu {

using VX::VXValue;

LanguageInfo::LanguageInfo(const VXValue& value) : LanguageInfo()
{
    using namespace wire_form;
    decode(pairValue(value, 0), m_p->path);
    decode(pairValue(value, 1), m_p->engineName);
    decode(pairValue(value, 2), m_p->engineVersion);
    decode(pairValue(value, 3), m_p->locale);
    decode(pairValue(value, 4), m_p->langToName);
}

void LanguageInfo::toVXValue(VXValue& value) const
{
    using namespace wire_form;
    store(arrayOf({pairOf("path", encoded(m_p->path)), pairOf("engineName", encoded(m_p->engineName)),
                   pairOf("engineVersion", encoded(m_p->engineVersion)), pairOf("locale", encoded(m_p->locale)),
                   pairOf("names", encoded(m_p->langToName))}),
          value);
}

} // namespace zu
