#pragma once

#include <zu/type/type_interface.hpp>

#include <string_view>

/// The registry: one for the process, whichever library asks. Every operation may be called from any thread, during
/// static initialisation and at exit. What is registered stays for the life of the process: the registry owns nothing,
/// and the library that an interface comes from must stay loaded.
namespace zu {

/// Makes `type` what is used for values of the C++ type `info`. To be called before the first use of the C++ type,
/// which would otherwise be known as something else to the library of that use.
/// @return false, and nothing is changed, when an interface is registered already; the same, with a message to the
/// category "zutype.registry", when the C++ type was used before, when `type` is null or its identity is not `info`, or
/// when the C++ type stands in an anonymous namespace.
ZU_EXPORT bool registerType(const TypeInfo& info, const TypeInterface* type);

/// Makes a struct known under its class name, exactly as it is spelled.
/// @return false, and nothing is changed, when the name is taken; the same, with a message to the category
/// "zutype.registry", when it is another C++ type's, the name is empty, `type` is null, or it stands in an anonymous
/// namespace.
ZU_EXPORT bool registerStruct(const TypeInterface* type);

/// The interface that was registered for a C++ type, null when there is none; never makes one.
ZU_EXPORT const TypeInterface* getType(const TypeInfo& info);

/// The interface whose name() is `name` among those that registerType() and registerStruct() filed, null when there is
/// none. Of two types with one name the first one filed.
ZU_EXPORT const TypeInterface* findType(std::string_view name);

} // namespace zu
