#pragma once

#include <zu/any_value.hpp>
#include <zu/walk.hpp>

#include <exception>
#include <memory>
#include <stdexcept>
#include <string>

/// Conversion between values of different types.
///
/// | from                         | to                           | how                                               |
/// |------------------------------|------------------------------|---------------------------------------------------|
/// | any type                     | the same type                | copied, whatever the kind                         |
/// | anything, nothing included   | Dynamic                      | the target's own `set` (an AnyValue takes a copy) |
/// | Dynamic                      | anything                     | its content is converted                          |
/// | anything, nothing included   | Optional                     | converted to the type of its value; nothing       |
/// |                              |                              | empties it                                        |
/// | Optional                     | anything                     | its value is converted                            |
/// | Int, Float                   | Int, Float                   | when the target's range has the number; see below |
/// | String                       | String                       | the bytes                                         |
/// | Raw                          | Raw                          | the bytes                                         |
/// | List                         | List                         | element by element; as many as an array has, and  |
/// |                              |                              | for a set no two may become one                   |
/// | Map                          | Map                          | entry by entry, keys too; no two may become one   |
/// | Tuple                        | Tuple                        | by name when both have names, each having the     |
/// |                              |                              | other's; else by position, in equal number        |
/// | Tuple with names             | Map with keys of kind String | one entry a member                                |
/// | Map (String or Dynamic keys) | Tuple with names             | one entry for each member, and none besides       |
///
/// Nothing else converts; no text is parsed and no number printed. Numbers: false and true are 0 and 1, and only these
/// become a bool; a fraction is dropped on the way to an integer; a number that a floating-point type has not is
/// rounded to the nearest that it has. Infinities and NaN convert among floating-point types, never to an integer.
///
/// A target is changed as a whole or, when the conversion fails, not at all. Values nested deeper than k_maxNesting are
/// refused, and so are those that refer to parts of themselves in very many ways (see walk.hpp). What runs out of
/// memory throws std::bad_alloc.
namespace zu {

/// Why a conversion failed, and where.
struct ZU_EXPORT ConversionFailure
{
    std::string sourceType; ///< the name of the type that was to be converted; "nothing" for an empty reference
    std::string targetType; ///< the name of the type that it was to become; "nothing" for an empty reference

    /// The way from the value to the element that failed: `[2]` for element 2 of a list or member 2 of a tuple without
    /// names, `.name` for a member, `["key"]`, `[7]` for the value under a key, `{3}` for the value of entry 3 under a
    /// key of another kind, with `(key)` behind it for the key itself. Empty when it is the value.
    std::string path;

    std::string reason; ///< for people

    /// What the `set` of a dynamic or the copying of a value threw, when that is the reason.
    std::exception_ptr cause;

    /// "Cannot convert A to B at PATH: REASON"; "at PATH" and "REASON" only where they are there.
    std::string message() const;
};

/// A value did not convert.
class ZU_EXPORT ConversionError : public std::runtime_error
{
public:
    /// Its what() is the message() of `failure`.
    explicit ConversionError(const ConversionFailure& failure);

    /// Copies share the failure, so that copying cannot fail.
    ConversionError(const ConversionError&) noexcept = default;
    /// Shares the failure of the other.
    ConversionError& operator=(const ConversionError&) noexcept = default;
    ~ConversionError() override;

    /// The failure as it was given; valid as long as the error or a copy of it is there.
    const ConversionFailure& failure() const noexcept { return *m_failure; }

private:
    std::shared_ptr<const ConversionFailure> m_failure;
};

/// Sets what `target` refers to to what `source` refers to, converted.
/// @return false when that does not convert; the target is then as it was, and `failure`, when given, says why. Without
/// `failure` a refusal costs no allocation.
ZU_EXPORT bool tryConvert(const AnyReferenceBase& source, const AnyReference& target,
                          ConversionFailure* failure = nullptr);

/// The same; throws ConversionError instead of returning false. What the `set` of a dynamic or a copy threw comes out
/// as it was thrown.
ZU_EXPORT void convert(const AnyReferenceBase& source, const AnyReference& target);

/// Reports that a value of one type does not convert to another, `reason` behind it when there is one; null for no
/// type.
[[noreturn]] ZU_EXPORT void throwConversionFailure(const TypeInterface* source, const TypeInterface* target,
                                                   const std::string& reason = {});

} // namespace zu
