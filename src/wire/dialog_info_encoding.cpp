#include "wire/wire_form.hpp"

namespace zupackage::wire {

void decode(const VXValue& value, zu::DialogInfoPrivate& record)
{
    constexpr int k_pairs = std::tuple_size_v<decltype(k_fields<zu::DialogInfoPrivate>)>;
    if (value.type() == VXValue::Type::Array && value.size() == k_pairs)
        decodePairs(value, k_pairs, record);
}

} // namespace zupackage::wire

namespace zu {

DialogInfo::DialogInfo(const VX::VXValue& value) : DialogInfo() { zupackage::wire::decode(value, *m_p); }

VX::VXValue DialogInfo::toVXValue() const { return zupackage::wire::encoded(*this); }

} // namespace zu
