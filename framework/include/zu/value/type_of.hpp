#pragma once

#include <zu/forward.hpp>
#include <zu/type/type_interface.hpp>

#include <atomic>
#include <type_traits>

namespace zu {

namespace detail {

/// Where one interface is made at most once, on first use, by any number of threads.
class ZU_EXPORT TypeSlot
{
public:
    using Make = const TypeInterface* (*)();

    constexpr TypeSlot() noexcept = default;
    TypeSlot(const TypeSlot&) = delete;
    TypeSlot& operator=(const TypeSlot&) = delete;
    ~TypeSlot() = default;

    /// The registered interface of the type, else what `make` gives. Threads that come while it runs wait for it; when
    /// it throws, its caller gets the exception and the next thread tries anew. Throws std::logic_error when the slot
    /// is asked for by what `make` asks for.
    const TypeInterface* get(const TypeInfo& info, Make make)
    {
        const TypeInterface* type = ready();
        return type ? type : resolve(info, make);
    }

    /// What get() gave, null before.
    const TypeInterface* ready() const noexcept { return m_type.load(std::memory_order_acquire); }

private:
    const TypeInterface* resolve(const TypeInfo& info, Make make);

    std::atomic<const TypeInterface*> m_type{nullptr};
};

/// Each library's own, whatever its default visibility: a plug-in that is unloaded takes the interfaces that it made
/// along, and no other library must find them in its slots.
template <class T>
[[gnu::visibility("hidden")]] inline TypeSlot typeSlot;

} // namespace detail

/// The interface of a C++ type, cv-qualifiers and references stripped: the registered one, else one that is made on the
/// first call, at most once in a library. The answer never changes afterwards; asking again costs an atomic load.
/// Throws std::invalid_argument for a type of an anonymous namespace that is not known yet: give it a namespace with a
/// name. For an unregistered class that nothing describes the kind is Unknown. Throws std::logic_error, naming the
/// types, when the making of an interface asks for that very interface; describing a struct whose members hold such
/// structs again does not.
template <class T>
const TypeInterface* typeOf()
{
    using Native = std::remove_cv_t<std::remove_reference_t<T>>;
    const TypeInterface* type = detail::typeSlot<Native>.ready();
    return type ? type : detail::typeSlot<Native>.get(TypeInfo::of<Native>(), &NativeType<Native>::make);
}

} // namespace zu
