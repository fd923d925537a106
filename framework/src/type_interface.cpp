#include <zu/log.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/type/float.hpp>
#include <zu/type/function.hpp>
#include <zu/type/int.hpp>
#include <zu/type/iterator.hpp>
#include <zu/type/list.hpp>
#include <zu/type/map.hpp>
#include <zu/type/object.hpp>
#include <zu/type/optional.hpp>
#include <zu/type/pointer.hpp>
#include <zu/type/raw.hpp>
#include <zu/type/string.hpp>
#include <zu/type/struct.hpp>
#include <zu/type/unknown.hpp>

#include <iterator>
#include <stdexcept>

namespace zu {

// Out of line, so that the interfaces' type information stands in this library alone.
TypeInterface::~TypeInterface() = default;
UnknownTypeInterface::~UnknownTypeInterface() = default;
FloatTypeInterface::~FloatTypeInterface() = default;
StringTypeInterface::~StringTypeInterface() = default;
RawTypeInterface::~RawTypeInterface() = default;
ListTypeInterface::~ListTypeInterface() = default;
VarArgsTypeInterface::~VarArgsTypeInterface() = default;
MapTypeInterface::~MapTypeInterface() = default;
IteratorTypeInterface::~IteratorTypeInterface() = default;
StructTypeInterface::~StructTypeInterface() = default;
DynamicTypeInterface::~DynamicTypeInterface() = default;
PointerTypeInterface::~PointerTypeInterface() = default;
OptionalTypeInterface::~OptionalTypeInterface() = default;
FunctionTypeInterface::~FunctionTypeInterface() = default;
SignalTypeInterface::~SignalTypeInterface() = default;
PropertyTypeInterface::~PropertyTypeInterface() = default;
ObjectTypeInterface::~ObjectTypeInterface() = default;

std::string_view kindName(TypeKind kind) noexcept
{
    static constexpr std::string_view k_names[] = {
        "Unknown", "Void", "Int", "Float",    "String",   "List",   "Map",      "Object",  "Pointer", "Tuple",
        "Dynamic", "Raw",  "",    "Iterator", "Function", "Signal", "Property", "VarArgs", "Optional"};
    const auto number = static_cast<std::size_t>(kind); // a negative one is beyond the end too
    return number < std::size(k_names) ? k_names[number] : std::string_view();
}

std::string TypeInterface::name() const { return info().name(); }

void* TypeInterface::take(void* value) const { return clone(value); }

bool TypeInterface::assign(void*, const void*) const { return false; }

bool TypeInterface::assignMoved(void* target, void* source) const { return assign(target, source); }

bool StringTypeInterface::isView() const noexcept { return false; }

bool DynamicTypeInterface::ownsContent() const noexcept { return true; }

bool ListTypeInterface::hasFixedSize() const noexcept { return false; }

bool ListTypeInterface::appendMoved(void* list, void* element) const { return append(list, element); }

bool ListTypeInterface::insertMoved(void*, std::size_t, void*) const { return false; }

bool ListTypeInterface::erase(void*, std::size_t) const { return false; }

bool ListTypeInterface::clear(void*) const { return false; }

std::size_t StructTypeInterface::memberCount() const { return memberTypes().size(); }

namespace detail {

void reportStorageFailure(const TypeInterface& type)
{
    static log::Category& category = log::addCategory("zutype.bypointer");
    log::write(category, log::Level::Error, {"src/type_interface", "zu::TypeInterface::initializeStorage", __LINE__},
               [&type] { return "initializeStorage error on " + type.name(); });
}

void throwNotCopyable(const TypeInterface& type) { throw std::logic_error(type.name() + " cannot be copied"); }

} // namespace detail
} // namespace zu
