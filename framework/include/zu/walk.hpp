#pragma once

#include <zu/value/any_reference.hpp>

#include <cstddef>
#include <unordered_set>

namespace zu {

/// How deep walks go into nested values.
inline constexpr int k_maxNesting = 64;

/// How many parts a walk takes of containers that it has come to before, by way of references to them.
inline constexpr std::size_t k_maxRepeatedParts = 100'000;

/// Keeps a walk over the parts of a value from overflowing the stack and from going on for ever: a value may be nested
/// as deep as memory goes, contain itself by way of references, or refer to a part from so many places that the ways
/// to its parts outnumber them by far. One object for a walk, one step for each value that it comes to:
///
///     void Printer::print(const AnyReferenceBase& value)
///     {
///         const Walk::Step step(m_walk, value);
///         if (!step)
///             throw std::length_error(step.refusal());
///         dispatch(value, *this); // which prints the parts
///     }
///
/// The parts of a list, of variable arguments, a map or a tuple lie a level below it. What a dynamic or an optional
/// holds, or a pointer points to, lies on the same level, unless that is a dynamic or an optional itself. Levels beyond
/// k_maxNesting are refused.
class Walk
{
public:
    class Step;

    Walk() = default;
    Walk(const Walk&) = delete;
    Walk& operator=(const Walk&) = delete;

private:
    const Step* m_innermost = nullptr;
    std::unordered_set<const void*> m_referredTo; ///< the containers that were come to by way of references
    std::size_t m_repeatedParts = 0;
};

/// A value that a walk has come to; it lives while the walk is at the value and its parts.
class ZU_EXPORT Walk::Step
{
public:
    /// Throws std::bad_alloc.
    Step(Walk& walk, const AnyReferenceBase& value);
    ~Step() { m_walk.m_innermost = m_outer; }
    Step(const Step&) = delete;
    Step& operator=(const Step&) = delete;

    /// Whether the value may be looked into.
    explicit operator bool() const noexcept { return m_refusal == nullptr; }

    /// Why it may not, for people; null when it may.
    const char* refusal() const noexcept { return m_refusal; }

    /// How many levels the value lies below where the walk began.
    int level() const noexcept { return m_level; }

private:
    void enterFrom(const Step& outer, const AnyReferenceBase& value);

    Walk& m_walk;
    const Step* const m_outer;
    const TypeInterface* const m_type;
    int m_level = 0;
    bool m_isRepeated = false; ///< whether it lies in a container that the walk has come to before
    const char* m_refusal = nullptr;
};

} // namespace zu
