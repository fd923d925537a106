#include "wire/wire_form.hpp"

namespace zupackage::wire {

namespace {

constexpr int k_pairs = std::tuple_size_v<decltype(k_fields<zu::PackageInfoPrivate>)>;
// Programs that do not know the last pairs yet, dialogs and description languages, send shorter forms.
constexpr int k_fewestPairs = 18;

} // namespace

void decode(const VXValue& value, zu::PackageInfoPrivate& record)
{
    if (value.type() == VXValue::Type::Array && value.size() >= k_fewestPairs && value.size() <= k_pairs)
        decodePairs(value, value.size(), record);
}

} // namespace zupackage::wire

namespace zu {

PackageInfo::PackageInfo(const VX::VXValue& value) : PackageInfo() { zupackage::wire::decode(value, *m_p); }

// Not const: callers are built against this signature.
void PackageInfo::toVXValue(VX::VXValue& value)
{
    if (m_p->uuid.empty())
        value.resizeArray(0);
    else
        zupackage::wire::store(zupackage::wire::encoded(*this), value);
}

} // namespace zu
