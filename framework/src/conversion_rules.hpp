#pragma once

#include <zu/conversion.hpp>
#include <zu/walk.hpp>

#include <optional>
#include <utility>

namespace zu::detail {

/// One run of the conversion: where it stands and what it has to tell. Nothing is composed when nobody listens.
class Conversion
{
public:
    explicit Conversion(ConversionFailure* failure) noexcept : m_failure(failure) {}

    /// Sets `target` from `source`, changing it as a whole or not at all. Throws std::bad_alloc alone.
    /// @return false, with reason and path noted, when that does not go.
    bool run(const AnyReferenceBase& source, const AnyReference& target);

    /// The same for a part of the value under conversion; `step()` gives the path to it.
    template <class Step>
    bool runPart(const AnyReferenceBase& source, const AnyReference& target, Step&& step)
    {
        ++m_parts;
        const bool done = run(source, target);
        --m_parts;
        if (!done && m_failure)
            m_failure->path.insert(0, std::forward<Step>(step)());
        return done;
    }

    /// Notes the reason that `compose()` gives; always false.
    template <class Compose>
    bool fail(Compose&& compose)
    {
        if (m_failure)
            m_failure->reason = std::forward<Compose>(compose)();
        return false;
    }

    /// Whether the target is a part of one that is thrown away when the conversion fails.
    bool isWithinScratch() const noexcept { return m_parts != 0; }

private:
    bool attemptSafely(const AnyReferenceBase& source, const AnyReference& target);
    bool attempt(const AnyReferenceBase& source, const AnyReference& target);
    bool setOptional(const AnyReferenceBase& source, const AnyReference& target);
    bool failFor(std::exception_ptr cause);

    ConversionFailure* m_failure;
    Walk m_walk;
    int m_runs = 0;
    int m_parts = 0; ///< how many of the runs are for parts
};

/// A value of a type for the time of a conversion: a default one, or a copy.
class Scratch
{
public:
    explicit Scratch(const TypeInterface* type) : m_type(type), m_value(type->initializeStorage()) {}
    explicit Scratch(const AnyReference& original) : m_type(original.type()), m_value(m_type->clone(original.address()))
    {
    }
    Scratch(Scratch&& other) noexcept : m_type(other.m_type), m_value(std::exchange(other.m_value, nullptr)) {}
    ~Scratch()
    {
        if (m_value)
            m_type->destroy(m_value);
    }
    Scratch& operator=(const Scratch&) = delete;

    /// `value` as one of type `type`, converted where it is of another. Throws what convert() throws.
    static Scratch of(const TypeInterface* type, const AnyReferenceBase& value);

    /// The same; nothing when the value does not convert.
    static std::optional<Scratch> tryOf(const TypeInterface* type, const AnyReferenceBase& value);

    explicit operator bool() const noexcept { return m_value != nullptr; }
    void* get() const noexcept { return m_value; }
    AnyReference reference() const { return AnyReference(m_type, m_value); }

    /// Moves the value to the target of a conversion.
    bool moveTo(Conversion& conversion, const AnyReference& target) const;

    /// Makes a value that was moved from fit to be converted to again: of a tuple only the members are set.
    bool renew(Conversion& conversion);

private:
    const TypeInterface* m_type;
    void* m_value;
};

/// How a value of one kind becomes one of another; the types are different and the target is writable.
using Rule = bool (*)(Conversion&, const AnyReferenceBase& source, const AnyReference& target);

bool intToInt(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool intToFloat(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool floatToInt(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool floatToFloat(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);

bool listToList(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool mapToMap(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);

bool tupleToTuple(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool tupleToMap(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);
bool mapToTuple(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target);

/// Sets the members of the tuple `target` from as many values, in order.
bool setMembers(Conversion& conversion, const std::vector<AnyReference>& sources, const AnyReference& target);

} // namespace zu::detail
