#pragma once

/// The whole host framework.
#include <zu/any_iterator.hpp>
#include <zu/any_reference.hpp>
#include <zu/any_value.hpp>
#include <zu/conversion.hpp>
#include <zu/dispatch.hpp>
#include <zu/log.hpp>
#include <zu/registry.hpp>
#include <zu/struct_bouncer.hpp>
#include <zu/type_info.hpp>
#include <zu/type_of.hpp>
