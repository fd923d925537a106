#include "wire/wire_form.hpp"

namespace zupackage::wire {

namespace {

/// @return whether the pair is that of the field.
template <class Value>
bool decodeIfKeyed(const VXValue& pair, std::string_view key, const Field<zu::BehaviorInfoPrivate, Value>& field,
                   zu::BehaviorInfoPrivate& record)
{
    if (key != field.key)
        return false;
    if (!field.isReserved)
        decode(pair[1], record.*field.pointer);
    return true;
}

} // namespace

void decode(const VXValue& value, zu::BehaviorInfoPrivate& record)
{
    if (value.type() != VXValue::Type::Array)
        return;
    for (int i = 0; i < value.size(); ++i) {
        const VXValue& pair = value[i];
        const std::string& key = pair[0];
        std::apply([&](const auto&... field) { static_cast<void>((decodeIfKeyed(pair, key, field, record) || ...)); },
                   k_fields<zu::BehaviorInfoPrivate>);
    }
    record.permissions.unique();
}

} // namespace zupackage::wire

namespace zu {

BehaviorInfo::BehaviorInfo(const VX::VXValue& value) : BehaviorInfo() { zupackage::wire::decode(value, *m_p); }

void BehaviorInfo::toVXValue(VX::VXValue& value) const
{
    zupackage::wire::store(zupackage::wire::encoded(*this), value);
}

} // namespace zu
