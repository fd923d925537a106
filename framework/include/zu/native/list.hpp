#pragma once

#include <zu/native/native.hpp>
#include <zu/native/position.hpp>
#include <zu/type/list.hpp>

#include <deque>
#include <iterator>
#include <list>
#include <utility>
#include <vector>

namespace zu {

/// The arguments of a call that takes any number of them.
template <class T>
class VarArguments
{
public:
    VarArguments() = default;
    /// Takes over the arguments, in their order.
    explicit VarArguments(std::vector<T> arguments) : m_arguments(std::move(arguments)) {}

    /// The arguments, which may be changed, in number too.
    std::vector<T>& args() noexcept { return m_arguments; }
    /// The arguments in their order.
    const std::vector<T>& args() const noexcept { return m_arguments; }

private:
    std::vector<T> m_arguments;
};

namespace detail {

template <class Container>
struct Elements
{
    static Container& of(Container& list) { return list; }
    static const Container& of(const Container& list) { return list; }
};
template <class T>
struct Elements<VarArguments<T>>
{
    static std::vector<T>& of(VarArguments<T>& list) { return list.args(); }
    static const std::vector<T>& of(const VarArguments<T>& list) { return list.args(); }
};

/// Whether elements stay where they are when others come and go.
template <class Container>
inline constexpr bool isNodeBased = false;
template <class T, class Allocator>
inline constexpr bool isNodeBased<std::list<T, Allocator>> = true;

/// What all lists can do; what comes and goes is left to those that derive from it.
template <class T, class Interface>
class NativeList : public Native<T, Interface>
{
protected:
    using Container = std::remove_reference_t<decltype(Elements<T>::of(std::declval<T&>()))>;
    using Element = typename Container::value_type;

public:
    const TypeInterface* elementType() const override { return typeOf<Element>(); }
    std::size_t size(const void* list) const override { return elements(list).size(); }
    AnyIterator begin(void* list) const override { return beginOf(elements(list)); }
    AnyIterator end(void* list) const override { return endOf(elements(list)); }

    AnyReference element(void* list, std::size_t index) const override
    {
        return elementReference(*std::next(elements(list).begin(), static_cast<std::ptrdiff_t>(index)));
    }

    bool forEach(const void* list, ListTypeInterface::Visit visit, void* context) const override
    {
        const TypeInterface* type = elementType();
        for (const auto& element : elements(list)) {
            if (!visit(context, reference(type, element)))
                return false;
        }
        return true;
    }

protected:
    static auto& elements(void* list) { return Elements<T>::of(NativeList::object(list)); }
    static const auto& elements(const void* list) { return Elements<T>::of(NativeList::object(list)); }

private:
    static AnyReference reference(const TypeInterface* type, const Element& element)
    {
        if constexpr (std::is_same_v<Container, std::vector<bool>>)
            return bitReference(element);
        else
            return AnyReference(type, static_cast<const void*>(std::addressof(element)));
    }
};

/// std::vector, std::list, std::deque.
template <class T, class Interface>
class NativeSequence final : public NativeList<T, Interface>
{
    using Base = NativeList<T, Interface>;
    using Element = typename Base::Element;
    using Base::elements;

    /// Whether elements can be moved aside.
    static constexpr bool k_shifts = std::is_move_constructible_v<Element> && std::is_move_assignable_v<Element>;

    /// Whether what fails while elements are moved aside could leave the list half changed.
    static constexpr bool k_shiftsMayFail =
        isCopyable<Element> && !isNodeBased<typename Base::Container> &&
        !(std::is_nothrow_move_constructible_v<Element> && std::is_nothrow_move_assignable_v<Element>);

public:
    bool append(void* list, const void* element) const override
    {
        if constexpr (isCopyable<Element>)
            elements(list).push_back(*static_cast<const Element*>(element));
        else
            throwNotCopyable(*this->elementType());
        return true;
    }
    bool appendMoved(void* list, void* element) const override
    {
        if constexpr (std::is_move_constructible_v<Element>)
            elements(list).push_back(std::move(*static_cast<Element*>(element)));
        else
            append(list, element);
        return true;
    }
    bool insertMoved(void* list, std::size_t index, void* element) const override
    {
        return shift(list, [&](auto& shifted) {
            shifted.insert(at(shifted, index), std::move(*static_cast<Element*>(element)));
        });
    }
    bool erase(void* list, std::size_t index) const override
    {
        return shift(list, [&](auto& shifted) { shifted.erase(at(shifted, index)); });
    }
    bool clear(void* list) const override
    {
        elements(list).clear();
        return true;
    }

private:
    template <class Change>
    static bool shift([[maybe_unused]] void* list, [[maybe_unused]] Change change)
    {
        if constexpr (k_shifts && k_shiftsMayFail) {
            auto copy = elements(list);
            change(copy);
            elements(list).swap(copy);
        } else if constexpr (k_shifts) {
            change(elements(list));
        }
        return k_shifts;
    }

    static auto at(typename Base::Container& container, std::size_t index)
    {
        return std::next(container.begin(), static_cast<std::ptrdiff_t>(index));
    }
};

} // namespace detail

template <class T, class Allocator>
struct NativeType<std::vector<T, Allocator>>
    : detail::MadeAs<detail::NativeSequence<std::vector<T, Allocator>, ListTypeInterface>>
{
};
template <class T, class Allocator>
struct NativeType<std::list<T, Allocator>>
    : detail::MadeAs<detail::NativeSequence<std::list<T, Allocator>, ListTypeInterface>>
{
};
template <class T, class Allocator>
struct NativeType<std::deque<T, Allocator>>
    : detail::MadeAs<detail::NativeSequence<std::deque<T, Allocator>, ListTypeInterface>>
{
};
template <class T>
struct NativeType<VarArguments<T>> : detail::MadeAs<detail::NativeSequence<VarArguments<T>, VarArgsTypeInterface>>
{
};

} // namespace zu
