#pragma once

#include <zu/value/any_value.hpp>

#include <cstddef>
#include <iterator>

namespace zu {

namespace detail {

struct Adjacent;

[[noreturn]] ZU_EXPORT void throwAtEnd();

} // namespace detail

/// A position in a list, a map or variable arguments, to walk their elements:
///
///     for (const AnyReference element : AnyReference::from(numbers))
///
/// Copies are independent. Dereferencing or advancing a position at the end, or a default-made one, throws
/// std::out_of_range. The container's own rules tell when a position is invalidated.
class ZU_EXPORT AnyIterator
{
public:
    using iterator_category = std::input_iterator_tag; ///< no more than that, for references are made when asked for
    using value_type = AnyReference;                   ///< refers to an element and does not hold it
    using difference_type = std::ptrdiff_t;            ///< for algorithms: positions cannot be subtracted
    using pointer = void;                              ///< there is no operator->()
    using reference = AnyReference;                    ///< given by value

    /// No position; equal to another such.
    AnyIterator() noexcept = default;

    /// Takes over a position, a value of kind Iterator; with `readOnly` the elements are for reading only. Throws
    /// std::runtime_error for a value of another kind.
    explicit AnyIterator(AnyValue position, bool readOnly = false);

    /// The element; a reference into the container.
    AnyReference operator*() const
    {
        if (!m_elementType)
            return elementAtPosition();
        if (m_current == m_end)
            detail::throwAtEnd();
        const AnyReference element(m_elementType, static_cast<void*>(m_current));
        return m_readOnly ? element.readOnly() : element;
    }

    /// Goes to the next position; at the end it throws and stays there.
    AnyIterator& operator++()
    {
        if (!m_elementType)
            advancePosition();
        else if (m_current == m_end)
            detail::throwAtEnd();
        else
            m_current += m_stride;
        return *this;
    }

    /// Gives a copy of the position before.
    AnyIterator operator++(int)
    {
        AnyIterator before = *this;
        ++*this;
        return before;
    }

    /// Whether both stand at the same position; positions of different types of container are different.
    friend bool operator==(const AnyIterator& a, const AnyIterator& b)
    {
        if (a.m_elementType && a.m_elementType == b.m_elementType)
            return a.m_current == b.m_current;
        return a.equals(b);
    }

    /// Whether they stand at different positions.
    friend bool operator!=(const AnyIterator& a, const AnyIterator& b) { return !(a == b); }

    /// The position as a value of kind Iterator; empty for a default-made one.
    AnyValue position() const;

    /// The same position with elements for reading only.
    AnyIterator readOnly() const&;

    /// The same, without copying the position.
    AnyIterator readOnly() &&;

private:
    friend detail::Adjacent;

    AnyReference elementAtPosition() const;
    void advancePosition();
    bool equals(const AnyIterator& other) const;
    void* state() const;
    const IteratorTypeInterface& positionType() const;

    AnyValue m_position;

    // Elements that lie one behind another in memory need no position: that is, where there is a type.
    const TypeInterface* m_elementType = nullptr;
    char* m_current = nullptr;
    char* m_end = nullptr;
    std::size_t m_stride = 0;

    bool m_readOnly = false;
};

namespace detail {

/// Elements of one type that lie one behind another in memory.
struct Adjacent
{
    const TypeInterface* type;
    void* first; ///< null when there are none
    std::size_t count;
    std::size_t stride;
    bool readOnly;

    AnyIterator begin() const { return at(0); }
    AnyIterator end() const { return at(count); }

private:
    AnyIterator at(std::size_t index) const
    {
        AnyIterator iterator;
        iterator.m_elementType = type;
        iterator.m_stride = stride;
        iterator.m_readOnly = readOnly;
        if (first) {
            iterator.m_current = static_cast<char*>(first) + index * stride;
            iterator.m_end = static_cast<char*>(first) + count * stride;
        }
        return iterator;
    }
};

} // namespace detail

} // namespace zu
