#pragma once

#include <zu/type/type_interface.hpp>

namespace zu {

/// Types that nothing more is known of: their values are copied and destroyed.
class ZU_EXPORT UnknownTypeInterface : public TypeInterface
{
public:
    ~UnknownTypeInterface() override;

protected:
    /// For implementations, which say their wordSize().
    explicit UnknownTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Unknown, wordSize)
    {
    }
};

} // namespace zu
