#pragma once

#include <zu/type/type_interface.hpp>

#include <map>
#include <vector>

namespace zu {

/// Values made of a fixed number of members: structs with a class name and member names; pairs and tuples without.
class ZU_EXPORT StructTypeInterface : public TypeInterface
{
public:
    ~StructTypeInterface() override;

    /// The name that the struct was registered under, exactly; empty for pairs and tuples.
    virtual const std::string& className() const = 0;

    /// The names of the members in their order; empty for pairs and tuples.
    virtual const std::vector<std::string>& elementsName() const = 0;

    /// The types of the members in the same order, fetched anew on every call: a member's type may become known later
    /// than the struct itself.
    virtual std::vector<const TypeInterface*> memberTypes() const = 0;

    /// The number of the members.
    virtual std::size_t memberCount() const;

    /// The member at `index`, less than the number of members, in `object`; for reading only when it is const there.
    virtual AnyReference element(void* object, std::size_t index) const = 0;

    /// All members in their order.
    virtual std::vector<AnyReference> values(void* object) const = 0;

    /// Sets all members, converting each value to its member's type.
    /// Throws ConversionError when the number is not that of the members or a value does not convert; `object` is then
    /// as it was.
    void setValues(void* object, const std::vector<AnyReference>& values) const;

    /// Copies of the members under their names. Throws ConversionError when the members have no names.
    std::map<std::string, AnyValue> toMap(const void* object) const;

    /// Sets all members from values of the same names. Throws ConversionError when a member is missing in `values`, a
    /// name there is no member's or a value does not convert; `object` is then as it was.
    void fromMap(void* object, const std::map<std::string, AnyValue>& values) const;

    /// className() when there is one.
    std::string name() const override;

protected:
    /// For implementations, which say their wordSize().
    explicit StructTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Tuple, wordSize)
    {
    }
};

} // namespace zu
