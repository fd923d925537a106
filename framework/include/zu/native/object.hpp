#pragma once

#include <zu/native/native.hpp>
#include <zu/registry.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/type/object.hpp>
#include <zu/value/any_reference.hpp>

#include <memory>
#include <utility>

namespace zu {

/// The object class of the generic handle Object<Empty>.
struct Empty
{
};

/// A handle that shares the ownership of an object of class T; kind Dynamic, its content is the object.
template <class T>
class Object
{
public:
    Object() = default;

    /// Shares the object; a null pointer makes a handle without one.
    explicit Object(std::shared_ptr<T> object) : m_object(std::move(object)) {}

    /// The object, an empty reference for a handle without one.
    AnyReference reference() const { return m_object ? AnyReference::from(*m_object) : AnyReference(); }

    /// Null for a handle without an object.
    const std::shared_ptr<T>& pointer() const noexcept { return m_object; }

private:
    std::shared_ptr<T> m_object;
};

/// The generic handle: its object may be of any class.
template <>
class Object<Empty>
{
public:
    Object() = default;

    /// Shares the object, which is known as a T from then on; a null pointer makes a handle without one.
    template <class T>
    explicit Object(std::shared_ptr<T> object)
        : m_reference(object ? AnyReference::from(*object) : AnyReference()), m_owner(std::move(object))
    {
    }

    /// Shares the object of a handle of its own class.
    template <class T>
    explicit Object(const Object<T>& handle) : Object(handle.pointer())
    {
    }

    /// The object, an empty reference for a handle without one.
    AnyReference reference() const noexcept { return m_reference; }

private:
    AnyReference m_reference;
    std::shared_ptr<const void> m_owner;
};

namespace detail {

template <class T>
class NativeHandle final : public Native<Object<T>, DynamicTypeInterface>
{
public:
    AnyReference get(void* value) const override { return this->object(value).reference(); }
    void set(void* value, const AnyReference& source) const override { setHandle(this->object(value), source); }
    bool ownsContent() const noexcept override { return false; }

private:
    /// Only another handle says who owns the object.
    static void setHandle(Object<T>& handle, const AnyReference& source)
    {
        const auto* other = source.getIf<Object<T>>();
        if (!other)
            throw std::runtime_error("an object handle can only be set to a handle of the same class");
        handle = *other;
    }
};

template <class T>
class NativeObject final : public Native<T, ObjectTypeInterface>
{
};

} // namespace detail

template <class T>
struct NativeType<Object<T>> : detail::MadeAs<detail::NativeHandle<T>>
{
};

/// Registers T as an object class: used in place, not taken apart. To be called before the first use of T.
/// @return false, and nothing is changed, when T is registered already.
template <class T>
bool registerObject()
{
    static const auto& type = *new detail::NativeObject<T>;
    return registerType(TypeInfo::of<T>(), &type);
}

} // namespace zu
