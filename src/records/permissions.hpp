#pragma once

#include "records/append_once.hpp"

#include <zupackage/behavior_info.hpp>

namespace zupackage {

/// Adds a supported permission to those of a behavior.
/// @return false, and nothing changes, when it is one of them already or not supported.
inline bool addPermission(std::list<std::string>& permissions, const std::string& permission)
{
    return contains(zu::BehaviorInfo::supportedPermissions(), permission) && appendOnce(permissions, permission);
}

} // namespace zupackage
