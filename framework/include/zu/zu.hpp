#pragma once

/// The whole host framework.
///
/// ABI: the virtual functions of the interfaces, the layout of the values and the code of the templates end up in the
/// binaries of those who use them. All that meet in one process must be built against headers of one soname, which
/// changes with every major and minor version.
#include <zu/any_iterator.hpp>
#include <zu/any_reference.hpp>
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>
#include <zu/dispatch.hpp>
#include <zu/json.hpp>
#include <zu/log.hpp>
#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>
#include <zu/type_info.hpp>
#include <zu/type_of.hpp>
