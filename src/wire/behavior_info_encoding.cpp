#include "wire/wire_form.hpp"

namespace zupackage::wire {

namespace {

template <class Value>
void decodeIfKeyed(const std::string& key, const VXValue& pair, const Field<zu::BehaviorInfoPrivate, Value>& field,
                   zu::BehaviorInfoPrivate& record)
{
    if (!field.isReserved && key == field.key)
        decode(pair[1], record.*field.pointer);
}

} // namespace

void decode(const VXValue& value, zu::BehaviorInfoPrivate& record)
{
    if (value.type() != VXValue::Type::Array)
        return;
    for (int i = 0; i < value.size(); ++i) {
        const VXValue& pair = value[i];
        std::string key;
        decode(pair[0], key);
        std::apply([&](const auto&... field) { (decodeIfKeyed(key, pair, field, record), ...); },
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
