#include <zu/any_iterator.hpp>
#include <zu/native/position.hpp>
#include <zu/type/iterator.hpp>

#include <stdexcept>
#include <utility>

namespace zu {

AnyIterator::AnyIterator(AnyValue position, bool readOnly)
{
    if (position.kind() != TypeKind::Iterator)
        throw std::runtime_error("an iterator is made of a position only");
    if (auto* iterator = position.getIf<AnyIterator>())
        *this = std::move(*iterator);
    else
        m_position = std::move(position);
    m_readOnly |= readOnly;
}

const IteratorTypeInterface& AnyIterator::positionType() const
{
    return static_cast<const IteratorTypeInterface&>(*m_position.type());
}

void* AnyIterator::state() const
{
    if (m_position.isEmpty())
        detail::throwAtEnd();
    return const_cast<void*>(m_position.address());
}

AnyReference AnyIterator::elementAtPosition() const
{
    void* const position = state();
    const AnyReference element = positionType().dereference(position);
    return m_readOnly ? element.readOnly() : element;
}

void AnyIterator::advancePosition()
{
    void* const position = state();
    positionType().next(position);
}

AnyValue AnyIterator::position() const { return *this == AnyIterator() ? AnyValue() : AnyValue::from(*this); }

AnyIterator AnyIterator::readOnly() const& { return AnyIterator(*this).readOnly(); }

AnyIterator AnyIterator::readOnly() &&
{
    m_readOnly = true;
    return std::move(*this);
}

bool AnyIterator::equals(const AnyIterator& other) const
{
    if (m_elementType && other.m_elementType)
        return m_elementType->info() == other.m_elementType->info() && m_current == other.m_current;
    if (m_elementType || other.m_elementType)
        return false;
    if (m_position.isEmpty() || other.m_position.isEmpty())
        return m_position.isEmpty() == other.m_position.isEmpty();
    const TypeInterface* type = m_position.type();
    const TypeInterface* otherType = other.m_position.type();
    return (type == otherType || type->info() == otherType->info()) &&
           positionType().equals(m_position.address(), other.m_position.address());
}

namespace detail {

void throwAtEnd() { throw std::out_of_range("the iterator is at its end"); }

AnyReference bitReference(bool bit)
{
    static constexpr bool k_bits[] = {false, true};
    return AnyReference::from(k_bits[bit ? 1 : 0]);
}

AnyReference elementReference(const std::vector<bool>::reference& element) { return bitReference(element); }

AnyReference NativeAnyIterator::dereference(void* iterator) const { return *object(iterator); }

void NativeAnyIterator::next(void* iterator) const { ++object(iterator); }

bool NativeAnyIterator::equals(const void* a, const void* b) const { return object(a) == object(b); }

} // namespace detail
} // namespace zu
