#pragma once

#include <zu/native/native.hpp>
#include <zu/type/iterator.hpp>
#include <zu/value/any_iterator.hpp>

#include <vector>

namespace zu {

namespace detail {

[[noreturn]] ZU_EXPORT void throwAtEnd();

/// A reference to an element of a container; of a packed one, whose elements have no address, to a constant that
/// equals it, for reading only.
template <class E>
AnyReference elementReference(E& element)
{
    return AnyReference::from(element);
}
ZU_EXPORT AnyReference elementReference(const std::vector<bool>::reference& element);
ZU_EXPORT AnyReference bitReference(bool bit);

/// A position in a container and the end of its range.
template <class Container>
struct Position
{
    typename Container::iterator current{};
    typename Container::iterator end{};
};

template <class Container>
class NativePosition final : public Native<Position<Container>, IteratorTypeInterface>
{
public:
    AnyReference dereference(void* iterator) const override
    {
        const auto& position = checked(iterator);
        return elementReference(*position.current);
    }
    void next(void* iterator) const override { ++checked(iterator).current; }
    bool equals(const void* a, const void* b) const override
    {
        return this->object(a).current == this->object(b).current;
    }

private:
    static Position<Container>& checked(void* iterator)
    {
        auto& position = NativePosition::object(iterator);
        if (position.current == position.end)
            throwAtEnd();
        return position;
    }
};

template <class Container>
AnyIterator beginOf(Container& container)
{
    return AnyIterator(AnyValue::from(Position<Container>{container.begin(), container.end()}));
}

template <class Container>
AnyIterator endOf(Container& container)
{
    return AnyIterator(AnyValue::from(Position<Container>{container.end(), container.end()}));
}

class ZU_EXPORT NativeAnyIterator final : public Native<AnyIterator, IteratorTypeInterface>
{
public:
    AnyReference dereference(void* iterator) const override;
    void next(void* iterator) const override;
    bool equals(const void* a, const void* b) const override;
};

} // namespace detail

template <class Container>
struct NativeType<detail::Position<Container>> : detail::MadeAs<detail::NativePosition<Container>>
{
};
template <>
struct NativeType<AnyIterator> : detail::MadeAs<detail::NativeAnyIterator>
{
};

} // namespace zu
