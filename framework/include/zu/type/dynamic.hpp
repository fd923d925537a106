#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Values that hold a value of some other type, which may change.
class ZU_EXPORT DynamicTypeInterface : public TypeInterface
{
public:
    ~DynamicTypeInterface() override;

    /// The content, which stays inside `value`; an empty reference when there is none.
    virtual AnyReference get(void* value) const = 0;

    /// Makes `value` hold what `source` refers to, converted as the type needs it. May throw; `value` is then as it
    /// was. `source` may refer to a part of `value`.
    virtual void set(void* value, const AnyReference& source) const = 0;

    /// Whether the content lies in `value` alone; false for types whose values refer to what others may refer to, too.
    virtual bool ownsContent() const noexcept;

protected:
    /// For implementations, which say their wordSize().
    explicit DynamicTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Dynamic, wordSize)
    {
    }
};

} // namespace zu
