#pragma once

#include <zu/type/type_interface.hpp>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace zu {

/// A named value of an enumeration.
struct Enumerator
{
    /// Implicit, so that a list of them reads {{"Red", Colour::Red}, {"Green", Colour::Green}}.
    template <class E, class = std::enable_if_t<std::is_enum_v<E>>>
    Enumerator(std::string valueName, E value) : name(std::move(valueName)), number(static_cast<std::int64_t>(value))
    {
    }

    std::string name;    ///< any text; of two that are equal numberOf() finds the first
    std::int64_t number; ///< in the form that IntTypeInterface::get() gives
};

/// Whole numbers up to 64 bits, bool and enumerations.
class ZU_EXPORT IntTypeInterface : public TypeInterface
{
public:
    ~IntTypeInterface() override;

    /// Bytes of a value; 0 for bool.
    virtual unsigned byteSize() const noexcept = 0;

    /// Whether there are numbers below 0: not for bool; for an enumeration as its underlying type has it.
    virtual bool isSigned() const noexcept = 0;

    /// The value; of an unsigned type of 8 bytes its bits, to be cast to std::uint64_t.
    virtual std::int64_t get(const void* value) const = 0;

    /// Whether the type has a number that fits into its bytes. Only an enumeration without a fixed underlying type may
    /// have not: it has the numbers that the bits of its named values make, and none when these are not known.
    virtual bool accepts(std::int64_t number) const noexcept;

    /// Stores a number that the caller knows to be within the range of the type (in the form that get() gives).
    virtual void set(void* value, std::int64_t number) const = 0;

    /// The named values of an enumeration in the order of its description; empty for what is none, or is not described
    /// (see EnumSchema).
    virtual const std::vector<Enumerator>& enumerators() const noexcept;

    /// The name of a value, of the first one when there are several; empty for a number without a name.
    std::string_view nameOf(std::int64_t number) const noexcept;

    /// The value that has a name; none when there is no such name.
    std::optional<std::int64_t> numberOf(std::string_view name) const noexcept;

protected:
    /// For implementations, which say their wordSize().
    explicit IntTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Int, wordSize)
    {
    }
};

} // namespace zu
