#pragma once

#include <zu/native/native.hpp>
#include <zu/type/iterator.hpp>
#include <zu/value/any_iterator.hpp>

#include <array>
#include <cstddef>
#include <type_traits>
#include <vector>

namespace zu {

namespace detail {

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
inline constexpr bool isAdjacent = false;
template <class T, class Allocator>
inline constexpr bool isAdjacent<std::vector<T, Allocator>> = !std::is_same_v<T, bool>;
template <class T, std::size_t size>
inline constexpr bool isAdjacent<std::array<T, size>> = true;

template <class Container>
Adjacent adjacentElements(Container& container)
{
    using Element = typename Container::value_type;
    return {typeOf<Element>(), const_cast<std::remove_const_t<Element>*>(container.data()), container.size(),
            sizeof(Element), std::is_const_v<Element>};
}

template <class Container>
AnyIterator beginOf(Container& container)
{
    if constexpr (isAdjacent<Container>)
        return adjacentElements(container).begin();
    else
        return AnyIterator(AnyValue::from(Position<Container>{container.begin(), container.end()}));
}

template <class Container>
AnyIterator endOf(Container& container)
{
    if constexpr (isAdjacent<Container>)
        return adjacentElements(container).end();
    else
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
