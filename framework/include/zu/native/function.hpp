#pragma once

#include <zu/native/native.hpp>
#include <zu/type/function.hpp>
#include <zu/value/type_of.hpp>

#include <boost/function/function_fwd.hpp>

#include <functional>

namespace zu {

/// Announces that a signal carrying values of these types is there; nothing is emitted through it.
template <class... T>
struct Signal
{
};

/// Announces that a property with a value of this type is there; nothing is read or written through it.
template <class T>
struct Property
{
};

namespace detail {

template <class Function, class Result, class... Parameters>
class NativeFunction final : public Native<Function, FunctionTypeInterface>
{
public:
    const TypeInterface* resultType() const override { return typeOf<Result>(); }
    std::vector<const TypeInterface*> parameterTypes() const override { return {typeOf<Parameters>()...}; }
};

template <class... T>
class NativeSignal final : public Native<Signal<T...>, SignalTypeInterface>
{
public:
    std::vector<const TypeInterface*> parameterTypes() const override { return {typeOf<T>()...}; }
};

template <class T>
class NativeProperty final : public Native<Property<T>, PropertyTypeInterface>
{
public:
    const TypeInterface* valueType() const override { return typeOf<T>(); }
};

} // namespace detail

template <class Result, class... Parameters>
struct NativeType<std::function<Result(Parameters...)>>
    : detail::MadeAs<detail::NativeFunction<std::function<Result(Parameters...)>, Result, Parameters...>>
{
};
template <class Result, class... Parameters>
struct NativeType<boost::function<Result(Parameters...)>>
    : detail::MadeAs<detail::NativeFunction<boost::function<Result(Parameters...)>, Result, Parameters...>>
{
};
template <class... T>
struct NativeType<Signal<T...>> : detail::MadeAs<detail::NativeSignal<T...>>
{
};
template <class T>
struct NativeType<Property<T>> : detail::MadeAs<detail::NativeProperty<T>>
{
};

} // namespace zu
