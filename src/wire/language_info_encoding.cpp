#include "wire/wire_form.hpp"

namespace zupackage::wire {

void decode(const VXValue& value, zu::LanguageInfoPrivate& record)
{
    constexpr int k_pairs = std::tuple_size_v<decltype(k_fields<zu::LanguageInfoPrivate>)>;
    decodePairs(value, k_pairs, record);
}

} // namespace zupackage::wire

namespace zu {

LanguageInfo::LanguageInfo(const VX::VXValue& value) : LanguageInfo() { zupackage::wire::decode(value, *m_p); }

void LanguageInfo::toVXValue(VX::VXValue& value) const
{
    zupackage::wire::store(zupackage::wire::encoded(*this), value);
}

} // namespace zu
