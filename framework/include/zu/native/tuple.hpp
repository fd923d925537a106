#pragma once

#include <zu/native/native.hpp>
#include <zu/type/struct.hpp>
#include <zu/value/any_reference.hpp>

#include <tuple>
#include <utility>

namespace zu {

namespace detail {

ZU_EXPORT const std::string& noName();
ZU_EXPORT const std::vector<std::string>& noNames();

/// std::pair and std::tuple: members without names.
template <class T>
class NativeTuple final : public Native<T, StructTypeInterface>
{
    using Indices = std::make_index_sequence<std::tuple_size_v<T>>;

public:
    const std::string& className() const override { return noName(); }
    const std::vector<std::string>& elementsName() const override { return noNames(); }
    std::vector<const TypeInterface*> memberTypes() const override { return types(Indices()); }
    std::size_t memberCount() const override { return std::tuple_size_v<T>; }
    AnyReference element(void* object, std::size_t index) const override { return values(object)[index]; }
    std::vector<AnyReference> values(void* object) const override
    {
        return std::apply([](auto&... members) { return std::vector<AnyReference>{AnyReference::from(members)...}; },
                          this->object(object));
    }

private:
    template <std::size_t... I>
    static std::vector<const TypeInterface*> types(std::index_sequence<I...>)
    {
        return {typeOf<std::tuple_element_t<I, T>>()...};
    }
};

/// Two members are picked without a detour: every map entry is such a value.
template <class A, class B>
class NativePair final : public Native<std::pair<A, B>, StructTypeInterface>
{
public:
    const std::string& className() const override { return noName(); }
    const std::vector<std::string>& elementsName() const override { return noNames(); }
    std::vector<const TypeInterface*> memberTypes() const override { return {typeOf<A>(), typeOf<B>()}; }
    std::size_t memberCount() const override { return 2; }
    AnyReference element(void* object, std::size_t index) const override
    {
        auto& pair = this->object(object);
        return index == 0 ? AnyReference::from(pair.first) : AnyReference::from(pair.second);
    }
    std::vector<AnyReference> values(void* object) const override { return {element(object, 0), element(object, 1)}; }
};

} // namespace detail

template <class A, class B>
struct NativeType<std::pair<A, B>> : detail::MadeAs<detail::NativePair<A, B>>
{
};
template <class... T>
struct NativeType<std::tuple<T...>> : detail::MadeAs<detail::NativeTuple<std::tuple<T...>>>
{
};

} // namespace zu
