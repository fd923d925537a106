#pragma once

#include <type_traits>

namespace zu::test {

/// Whether a member or function has exactly the type that callers are built against.
template <class Expected, class Member>
constexpr bool has(Member /*member*/)
{
    return std::is_same_v<Expected, Member>;
}

} // namespace zu::test
