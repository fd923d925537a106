#pragma once

#include <zu/type/type_interface.hpp>

#include <cstdint>
#include <deque>
#include <list>
#include <map>
#include <new>
#include <optional>
#include <set>
#include <tuple>
#include <type_traits>
#include <unordered_map>
#include <utility>
#include <vector>

namespace zu {

namespace detail {

/// std::is_copy_constructible says yes for any container; this looks at what it contains.
template <class T>
struct IsCopyable : std::is_copy_constructible<T>
{
};
template <class T, class A>
struct IsCopyable<std::vector<T, A>> : IsCopyable<T>
{
};
template <class T, class A>
struct IsCopyable<std::list<T, A>> : IsCopyable<T>
{
};
template <class T, class A>
struct IsCopyable<std::deque<T, A>> : IsCopyable<T>
{
};
template <class T, class C, class A>
struct IsCopyable<std::set<T, C, A>> : IsCopyable<T>
{
};
template <class K, class V, class C, class A>
struct IsCopyable<std::map<K, V, C, A>> : std::conjunction<IsCopyable<K>, IsCopyable<V>>
{
};
template <class K, class V, class H, class E, class A>
struct IsCopyable<std::unordered_map<K, V, H, E, A>> : std::conjunction<IsCopyable<K>, IsCopyable<V>>
{
};
template <class A, class B>
struct IsCopyable<std::pair<A, B>> : std::conjunction<IsCopyable<A>, IsCopyable<B>>
{
};
template <class... T>
struct IsCopyable<std::tuple<T...>> : std::conjunction<IsCopyable<T>...>
{
};
template <class T>
struct IsCopyable<std::optional<T>> : IsCopyable<T>
{
};

template <class T>
inline constexpr bool isCopyable = IsCopyable<T>::value;

/// What AnyValue may hold in place: what fits and is copied as bytes.
template <class T>
inline constexpr std::size_t wordSizeOf = std::is_trivially_copyable_v<T>&& std::is_copy_constructible_v<T> &&
                                                  sizeof(T) <= sizeof(std::uint64_t) &&
                                                  alignof(T) <= alignof(std::uint64_t)
                                              ? sizeof(T)
                                              : 0;

/// Given to NativeType<T> as a base: the interface is an object of class `Interface`.
template <class Interface>
struct MadeAs
{
    static const TypeInterface* make() { return new Interface; }
};

} // namespace detail

/// Implements what every interface of a C++ type T needs; `Interface` is the interface of a kind, and what is left to
/// write is what that one adds:
///
///     class CelsiusType : public Native<Celsius, DynamicTypeInterface> { AnyReference get(void*) const override; ...
///     };
template <class T, class Interface>
class Native : public Interface
{
public:
    /// A T made by its default constructor; null, and logged, when it has none or that throws anything but
    /// std::bad_alloc, which comes out.
    void* initializeStorage() const override
    {
        if constexpr (std::is_default_constructible_v<T>) {
            try {
                return new T();
            } catch (const std::bad_alloc&) { // says nothing about the type
                detail::reportStorageFailure(*this);
                throw;
            } catch (...) { // whatever it is, the answer is null
                detail::reportStorageFailure(*this);
                return nullptr;
            }
        } else {
            detail::reportStorageFailure(*this);
            return nullptr;
        }
    }

    /// Throws std::logic_error when T cannot be copied; of a container, when what it contains cannot.
    void* clone(const void* value) const override
    {
        if constexpr (detail::isCopyable<T>)
            return new T(*static_cast<const T*>(value));
        else
            detail::throwNotCopyable(*this);
    }

    /// Copies a T that cannot be moved.
    void* take(void* value) const override
    {
        if constexpr (std::is_move_constructible_v<T>)
            return new T(std::move(*static_cast<T*>(value)));
        else
            return clone(value);
    }

    /// Does nothing for a T that is abstract or whose destructor cannot be called: no such value is made here.
    void destroy(void* value) const override
    {
        if constexpr (std::is_destructible_v<T> && !std::is_abstract_v<T>)
            delete static_cast<T*>(value);
    }

    /// When the copying throws, `target` is as it was if the move assignment of T cannot throw.
    /// @return false, and nothing is done, when T cannot be copied or not be assigned.
    bool assign(void* target, const void* source) const override
    {
        if constexpr (detail::isCopyable<T> && std::is_nothrow_move_assignable_v<T>) {
            *static_cast<T*>(target) = T(*static_cast<const T*>(source)); // a copy that throws leaves the target alone
            return true;
        } else if constexpr (detail::isCopyable<T> && std::is_copy_assignable_v<T>) {
            *static_cast<T*>(target) = *static_cast<const T*>(source);
            return true;
        } else {
            return false;
        }
    }

    /// Copies a T that cannot be moved.
    bool assignMoved(void* target, void* source) const override
    {
        if constexpr (std::is_move_assignable_v<T>) {
            *static_cast<T*>(target) = std::move(*static_cast<T*>(source));
            return true;
        } else {
            return assign(target, source);
        }
    }

protected:
    Native() : Interface(TypeInfo::of<T>(), detail::wordSizeOf<T>) {}

    /// The value as what it is, for the operations that are left to write.
    static T& object(void* value) { return *static_cast<T*>(value); }
    /// The same for reading.
    static const T& object(const void* value) { return *static_cast<const T*>(value); }
};

} // namespace zu
