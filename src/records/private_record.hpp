#pragma once

namespace zu {

/// The library's own way from a public handle to the record that it owns.
struct PrivateRecord
{
    template <class Handle>
    static auto& of(const Handle& handle)
    {
        return *handle.m_p;
    }
};

} // namespace zu
