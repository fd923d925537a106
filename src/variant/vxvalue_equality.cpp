// Compares without a call for each level: whoever builds a value picks its depth.

#include <zupackage/vxvalue.hpp>

namespace VX {

namespace {

/// Objects may have no bytes at all.
bool areEqual(const TVXValueBytes* left, const TVXValueBytes* right)
{
    return left == right || (left != nullptr && right != nullptr && *left == *right);
}

} // namespace

bool VXValue::equals(const VXValue& other) const
{
    if (!equalsButForElements(other))
        return false;
    std::vector<std::pair<const Array*, const Array*>> pending;
    if (m_type == Type::Array)
        pending.emplace_back(m_value.array, other.m_value.array);
    while (!pending.empty()) {
        const auto [left, right] = pending.back();
        pending.pop_back();
        auto counterpart = right->begin();
        for (const VXValue& element : *left) {
            if (!element.equalsButForElements(*counterpart))
                return false;
            if (element.m_type == Type::Array && !element.m_value.array->empty())
                pending.emplace_back(element.m_value.array, counterpart->m_value.array);
            ++counterpart;
        }
    }
    return true;
}

bool VXValue::equalsButForElements(const VXValue& other) const
{
    if (m_type != other.m_type)
        return false;
    switch (m_type) {
    case Type::Invalid:
        return true;
    case Type::Array:
        return m_value.array->size() == other.m_value.array->size();
    case Type::Bool:
        return m_value.boolean == other.m_value.boolean;
    case Type::Int:
        return m_value.integer == other.m_value.integer;
    case Type::Float:
        return m_value.real == other.m_value.real;
    case Type::String:
        return *m_value.string == *other.m_value.string;
    case Type::Object:
    case Type::Binary:
        return areEqual(m_value.bytes, other.m_value.bytes);
    }
    return false;
}

} // namespace VX
