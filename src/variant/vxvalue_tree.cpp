// How a value of any depth is copied and destroyed: without a call for each level, because whoever builds a value picks
// its depth.

#include "variant/vxfailure.hpp"

#include <zupackage/vxvalue.hpp>

#include <utility>

namespace VX {

namespace {

constexpr SourcePlace hereInTree(int line) { return {"src/vxvalue_tree.cpp", line}; }

template <class Owned>
Owned* copyOf(const Owned* source, const SourcePlace& place)
{
    assertThat(source != nullptr, place);
    return new Owned(*source);
}

} // namespace

void VXValue::clear() noexcept
{
    switch (std::exchange(m_type, Type::Invalid)) {
    case Type::Array:
        destroy(m_value.array);
        break;
    case Type::String:
        delete m_value.string;
        break;
    case Type::Object:
    case Type::Binary:
        delete m_value.bytes;
        break;
    case Type::Invalid:
    case Type::Bool:
    case Type::Int:
    case Type::Float:
        break;
    }
    m_value = Payload();
}

void VXValue::destroy(Array* array) noexcept
{
    // On the way down, the element that led to an array holds the way back up; so nothing has to be allocated.
    Array* parent = nullptr;
    while (array != nullptr) {
        if (array->empty()) {
            delete array;
            array = parent;
            if (array != nullptr) {
                parent = array->back().m_value.array;
                array->back().m_type = Type::Invalid;
                array->pop_back();
            }
        } else if (VXValue& last = array->back(); last.m_type == Type::Array && last.m_value.array != nullptr) {
            parent = std::exchange(array, std::exchange(last.m_value.array, parent));
        } else {
            array->pop_back();
        }
    }
}

void VXValue::copyLeaf(const VXValue& other)
{
    switch (other.m_type) {
    case Type::String:
        m_value.string = copyOf(other.m_value.string, hereInTree(__LINE__));
        break;
    case Type::Object:
    case Type::Binary:
        m_value.bytes = copyOf(other.m_value.bytes, hereInTree(__LINE__));
        break;
    case Type::Array:
    case Type::Invalid:
    case Type::Bool:
    case Type::Int:
    case Type::Float:
        m_value = other.m_value;
        break;
    }
    m_type = other.m_type;
}

void VXValue::copyTree(const VXValue& other)
{
    if (other.m_type != Type::Array)
        return copyLeaf(other);
    std::vector<std::pair<const VXValue*, VXValue*>> pending{{&other, this}};
    while (!pending.empty()) {
        const auto [source, target] = pending.back();
        pending.pop_back();
        assertThat(source->m_value.array != nullptr, hereInTree(__LINE__));
        const Array& elements = *source->m_value.array;
        target->m_value.array = new Array(elements.size());
        target->m_type = Type::Array;
        for (std::size_t i = 0; i < elements.size(); ++i) {
            VXValue& copy = (*target->m_value.array)[i];
            if (elements[i].m_type == Type::Array)
                pending.emplace_back(&elements[i], &copy);
            else
                copy.copyLeaf(elements[i]);
        }
    }
}

} // namespace VX
