#pragma once

#include <zupackage/behavior_info.hpp>

#include <string>

namespace zu::test {

/// An empty behavior but for its path.
inline BehaviorInfo behaviorAt(const std::string& path)
{
    BehaviorInfo behavior;
    behavior.setPath(path);
    return behavior;
}

} // namespace zu::test
