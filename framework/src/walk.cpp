#include "kinds.hpp"

#include <zu/type/dynamic.hpp>
#include <zu/walk.hpp>

namespace zu {

using detail::isContainer;
using detail::isWrapper;

namespace {

static_assert(k_maxNesting == 64 && k_maxRepeatedParts == 100'000, "the numbers stand in the texts below");
constexpr char k_tooDeep[] = "the value is nested deeper than 64 levels";
constexpr char k_tooMany[] = "the value refers to parts of itself in more than 100000 ways";

bool refersToContent(const TypeInterface& type)
{
    return type.kind() == TypeKind::Pointer ||
           (type.kind() == TypeKind::Dynamic && !static_cast<const DynamicTypeInterface&>(type).ownsContent());
}

} // namespace

Walk::Step::Step(Walk& walk, const AnyReferenceBase& value)
    : m_walk(walk), m_outer(walk.m_innermost), m_type(value.type())
{
    if (m_outer)
        enterFrom(*m_outer, value);
    walk.m_innermost = this;
}

void Walk::Step::enterFrom(const Step& outer, const AnyReferenceBase& value)
{
    const bool isLevel = isContainer(outer.m_type->kind()) || isWrapper(value.kind());
    m_level = outer.m_level + (isLevel ? 1 : 0);
    m_isRepeated = outer.m_isRepeated;
    if (m_isRepeated && ++m_walk.m_repeatedParts > k_maxRepeatedParts)
        m_refusal = k_tooMany;
    else if (m_level > k_maxNesting)
        m_refusal = k_tooDeep;
    else if (isContainer(value.kind()) && refersToContent(*outer.m_type))
        m_isRepeated |= !m_walk.m_referredTo.insert(value.address()).second;
}

} // namespace zu
