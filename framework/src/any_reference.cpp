#include "conversion_rules.hpp"
#include "kinds.hpp"

#include <zu/any_reference.hpp>
#include <zu/type/dynamic.hpp>
#include <zu/type/int.hpp>
#include <zu/type/list.hpp>
#include <zu/type/map.hpp>
#include <zu/type/optional.hpp>
#include <zu/type/pointer.hpp>
#include <zu/type/raw.hpp>
#include <zu/type/string.hpp>
#include <zu/type/struct.hpp>

#include <algorithm>
#include <stdexcept>

namespace zu {

using detail::as;
using detail::isListLike;

namespace {

std::string nameOf(const AnyReferenceBase& reference)
{
    return reference.isEmpty() ? std::string("an empty reference") : reference.type()->name();
}

[[noreturn]] void throwUnfit(const char* operation, const AnyReferenceBase& reference, const char* needed)
{
    throw std::runtime_error(std::string(operation) + " of " + nameOf(reference) + ": " + needed + " is needed");
}

/// The operations of interfaces take values to write to; what comes of them is marked as the reference is.
void* addressOf(const AnyReferenceBase& reference) { return const_cast<void*>(reference.address()); }

AnyReference markedAs(const AnyReferenceBase& whole, const AnyReference& part)
{
    return whole.isReadOnly() ? part.readOnly() : part;
}

AnyIterator markedAs(const AnyReferenceBase& whole, AnyIterator iterator)
{
    return whole.isReadOnly() ? std::move(iterator).readOnly() : iterator;
}

const char* const k_iterable = "a list, a map or variable arguments";

} // namespace

std::int64_t AnyReferenceBase::toInt() const
{
    if (kind() == TypeKind::Int) {
        const auto& type = as<IntTypeInterface>(*this);
        if (type.isSigned() || type.byteSize() < sizeof(std::int64_t))
            return type.get(m_address); // always in range, and what loops over elements ask for
    }
    return to<std::int64_t>();
}

double AnyReferenceBase::toDouble() const { return to<double>(); }

std::string AnyReferenceBase::toString() const { return to<std::string>(); }

std::string_view AnyReferenceBase::text() const
{
    if (kind() != TypeKind::String)
        throwUnfit("text()", *this, "a string");
    return as<StringTypeInterface>(*this).get(m_address);
}

std::string_view AnyReferenceBase::rawBuffer() const
{
    if (kind() != TypeKind::Raw)
        throwUnfit("rawBuffer()", *this, "a raw buffer");
    return as<RawTypeInterface>(*this).get(m_address);
}

std::size_t AnyReferenceBase::size() const
{
    if (isListLike(kind()))
        return as<ListTypeInterface>(*this).size(m_address);
    if (kind() == TypeKind::Map)
        return as<MapTypeInterface>(*this).size(m_address);
    if (kind() == TypeKind::Tuple)
        return as<StructTypeInterface>(*this).memberCount();
    throwUnfit("size()", *this, "a list, a map, variable arguments or a tuple");
}

AnyIterator AnyReferenceBase::begin() const
{
    if (isListLike(kind()))
        return markedAs(*this, as<ListTypeInterface>(*this).begin(addressOf(*this)));
    if (kind() == TypeKind::Map)
        return markedAs(*this, as<MapTypeInterface>(*this).begin(addressOf(*this)));
    throwUnfit("begin()", *this, k_iterable);
}

AnyIterator AnyReferenceBase::end() const
{
    if (isListLike(kind()))
        return markedAs(*this, as<ListTypeInterface>(*this).end(addressOf(*this)));
    if (kind() == TypeKind::Map)
        return markedAs(*this, as<MapTypeInterface>(*this).end(addressOf(*this)));
    throwUnfit("end()", *this, k_iterable);
}

AnyReference AnyReferenceBase::_element(std::size_t index) const
{
    if (!isListLike(kind()) && kind() != TypeKind::Tuple)
        throwUnfit("_element()", *this, "a tuple, a list or variable arguments");
    if (index >= size()) {
        throw std::out_of_range("_element(" + std::to_string(index) + ") of " + nameOf(*this) + ": there are only " +
                                std::to_string(size()));
    }
    if (kind() == TypeKind::Tuple)
        return markedAs(*this, as<StructTypeInterface>(*this).element(addressOf(*this), index));
    return markedAs(*this, as<ListTypeInterface>(*this).element(addressOf(*this), index));
}

AnyReference AnyReferenceBase::member(std::string_view name) const
{
    if (kind() != TypeKind::Tuple)
        throwUnfit("member()", *this, "a struct");
    const auto& type = as<StructTypeInterface>(*this);
    const std::vector<std::string>& names = type.elementsName();
    const auto found = std::find(names.begin(), names.end(), name);
    if (found != names.end())
        return markedAs(*this, type.element(addressOf(*this), static_cast<std::size_t>(found - names.begin())));
    std::string message = "member(\"" + std::string(name) + "\") of " + type.name() + ": ";
    message += names.empty() ? "its members have no names" : "its members are ";
    for (const std::string& known : names)
        message += (&known == &names.front() ? "" : ", ") + known;
    throw std::out_of_range(message);
}

AnyReference AnyReferenceBase::find(const AnyArgument& key) const
{
    if (kind() != TypeKind::Map)
        throwUnfit("find()", *this, "a map");
    const auto& type = as<MapTypeInterface>(*this);
    const std::optional<detail::Scratch> converted = detail::Scratch::tryOf(type.keyType(), key.value());
    return converted ? markedAs(*this, type.find(addressOf(*this), converted->get())) : AnyReference();
}

std::string_view AnyReferenceBase::enumName() const
{
    if (kind() != TypeKind::Int)
        throwUnfit("enumName()", *this, "an enumeration");
    const auto& type = as<IntTypeInterface>(*this);
    return type.nameOf(type.get(m_address));
}

AnyReference AnyReferenceBase::content() const
{
    if (kind() == TypeKind::Dynamic)
        return markedAs(*this, as<DynamicTypeInterface>(*this).get(addressOf(*this)));
    if (kind() == TypeKind::Optional)
        return markedAs(*this, as<OptionalTypeInterface>(*this).value(addressOf(*this)));
    if (kind() == TypeKind::Pointer) // a pointer says itself whether what it points to is const
        return as<PointerTypeInterface>(*this).dereference(m_address);
    throwUnfit("content()", *this, "a dynamic, a pointer or an optional");
}

void AnyReference::refuse(const TypeInterface* type)
{
    if (!type)
        throw std::invalid_argument("a reference needs a type");
    throw std::invalid_argument("a reference to " + type->name() + " needs an address");
}

void* AnyReference::writableAddress() const
{
    if (isEmpty())
        throw std::runtime_error("an empty reference cannot be written through");
    if (isReadOnly())
        throw std::runtime_error("a reference to " + type()->name() + " is for reading only");
    return m_address;
}

void AnyReference::set(const AnyReferenceBase& source) const { detail::convertOrThrow(source, *this); }

namespace detail {

std::string textOf(const char* text)
{
    if (!text)
        throw std::invalid_argument("a null pointer is no text");
    return text;
}

} // namespace detail
} // namespace zu
