#pragma once

#include <zu/native/list.hpp>

#include <set>

namespace zu {

namespace detail {

/// Its elements are for reading only, and there once each.
template <class T>
class NativeSet final : public NativeList<T, ListTypeInterface>
{
    using Base = NativeList<T, ListTypeInterface>;
    using Element = typename Base::Element;
    using Base::elements;

public:
    bool append(void* list, const void* element) const override
    {
        if constexpr (isCopyable<Element>)
            return elements(list).insert(*static_cast<const Element*>(element)).second;
        else
            throwNotCopyable(*this->elementType());
    }
    bool appendMoved(void* list, void* element) const override
    {
        if constexpr (std::is_move_constructible_v<Element>)
            return elements(list).insert(std::move(*static_cast<Element*>(element))).second;
        else
            return append(list, element);
    }
    bool erase(void* list, std::size_t index) const override
    {
        elements(list).erase(std::next(elements(list).begin(), static_cast<std::ptrdiff_t>(index)));
        return true;
    }
    bool clear(void* list) const override
    {
        elements(list).clear();
        return true;
    }
};

} // namespace detail

template <class T, class Compare, class Allocator>
struct NativeType<std::set<T, Compare, Allocator>> : detail::MadeAs<detail::NativeSet<std::set<T, Compare, Allocator>>>
{
};

} // namespace zu
