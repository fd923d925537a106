#include "records/dialog_info_p.hpp"
#include "wire/wire_form.hpp"

namespace zu {

using VX::VXValue;

DialogInfo::DialogInfo(const VXValue& value) : DialogInfo()
{
    using namespace wire_form;
    if (value.type() != VXValue::Type::Array || value.size() != 3)
        return;
    decode(pairValue(value, 0), m_p->topicName);
    decode(pairValue(value, 1), m_p->typeVersion);
    decode(pairValue(value, 2), m_p->topics);
}

VXValue DialogInfo::toVXValue() const
{
    using namespace wire_form;
    return arrayOf({pairOf("topicName", encoded(m_p->topicName)), pairOf("typeVersion", encoded(m_p->typeVersion)),
                    pairOf("topics", encoded(m_p->topics))});
}

} // namespace zu
