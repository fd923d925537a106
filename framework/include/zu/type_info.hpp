#pragma once

#include <zu/export.hpp>

#include <boost/type_index/stl_type_index.hpp>

#include <cstddef>
#include <functional>
#include <string>

namespace zu {

/// The identity of a C++ type, cv-qualifiers and references stripped. Two of one type are equal whichever library they
/// were made in, so they are what types are compared by; interfaces of one type may differ from library to library.
/// Immutable, cheap to copy, usable from any thread.
class ZU_EXPORT TypeInfo
{
public:
    /// Implicit: whoever has a type index has the identity.
    TypeInfo(const boost::typeindex::stl_type_index& index) noexcept // NOLINT(google-explicit-constructor)
        : m_index(index)
    {
    }

    /// The identity of T; a class must be complete.
    template <class T>
    static TypeInfo of() noexcept
    {
        return boost::typeindex::stl_type_index::type_id<T>();
    }

    /// The identity as Boost.TypeIndex has it.
    const boost::typeindex::stl_type_index& index() const noexcept { return m_index; }

    /// The name as a person writes it: "std::map<std::string, int>", and not as compilers do, with every default
    /// argument.
    std::string name() const;

    /// Whether the type, or one that it is made of, stands in an anonymous namespace. Such types of two libraries are
    /// unrelated and may yet compare equal, so the type system refuses them.
    bool isAnonymous() const noexcept;

    /// The same for equal types.
    std::size_t hash() const noexcept { return m_index.hash_code(); }

    /// Whether both are the identity of one type, whichever libraries they were made in.
    friend bool operator==(const TypeInfo& a, const TypeInfo& b) noexcept { return a.m_index == b.m_index; }
    /// Whether they are those of different types.
    friend bool operator!=(const TypeInfo& a, const TypeInfo& b) noexcept { return !(a == b); }
    /// Some strict order, the same for the life of the process.
    friend bool operator<(const TypeInfo& a, const TypeInfo& b) noexcept { return a.m_index < b.m_index; }

private:
    boost::typeindex::stl_type_index m_index;
};

} // namespace zu

/// Equal types have equal hashes.
template <>
struct std::hash<zu::TypeInfo>
{
    /// That of TypeInfo::hash().
    std::size_t operator()(const zu::TypeInfo& info) const noexcept { return info.hash(); }
};
