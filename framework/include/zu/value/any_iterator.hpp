#pragma once

#include <zu/value/any_value.hpp>

#include <cstddef>
#include <iterator>

namespace zu {

/// A position in a list, a map or variable arguments, to walk their elements:
///
///     for (const AnyReference element : AnyReference::from(numbers))
///
/// Copies are independent. Dereferencing or advancing a position at the end, or a default-made one, throws
/// std::out_of_range. The container's own rules tell when a position is invalidated.
class ZU_EXPORT AnyIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = AnyReference;
    using difference_type = std::ptrdiff_t;
    using pointer = void;
    using reference = AnyReference;

    /// No position; equal to another such.
    AnyIterator() noexcept = default;

    /// Takes over a position, a value of kind Iterator; with `readOnly` the elements are for reading only. Throws
    /// std::runtime_error for a value of another kind.
    explicit AnyIterator(AnyValue position, bool readOnly = false);

    /// The element; a reference into the container.
    AnyReference operator*() const;

    AnyIterator& operator++();
    AnyIterator operator++(int);

    /// Whether both stand at the same position; positions of different types of container are different.
    friend bool operator==(const AnyIterator& a, const AnyIterator& b) { return a.equals(b); }
    friend bool operator!=(const AnyIterator& a, const AnyIterator& b) { return !a.equals(b); }

    /// The position as a value of kind Iterator; empty for a default-made one.
    const AnyValue& position() const noexcept { return m_position; }

    /// The same position with elements for reading only.
    AnyIterator readOnly() const&;
    AnyIterator readOnly() &&;

private:
    bool equals(const AnyIterator& other) const;
    void* state() const;
    const IteratorTypeInterface& positionType() const;

    AnyValue m_position;
    bool m_readOnly = false;
};

} // namespace zu
