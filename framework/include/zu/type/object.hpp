#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Classes whose instances are used in place and not taken apart: they have a name, nothing of them is read or set.
class ZU_EXPORT ObjectTypeInterface : public TypeInterface
{
public:
    ~ObjectTypeInterface() override;

protected:
    /// For implementations, which say their wordSize().
    explicit ObjectTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Object, wordSize)
    {
    }
};

} // namespace zu
