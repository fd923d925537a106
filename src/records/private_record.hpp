#pragma once

#include <utility>

namespace zu {

/// The library's own way from a public handle to the record that it owns, const for a const handle.
struct PrivateRecord
{
    template <class Handle>
    static auto& of(Handle& handle)
    {
        return *handle.m_p;
    }

    template <class Handle>
    static const auto& of(const Handle& handle)
    {
        return std::as_const(*handle.m_p);
    }
};

} // namespace zu
