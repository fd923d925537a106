#pragma once

#include <zu/type/type_interface.hpp>

#include <vector>

namespace zu {

/// Functions, described by their signature; the type system does not call them.
class ZU_EXPORT FunctionTypeInterface : public TypeInterface
{
public:
    ~FunctionTypeInterface() override;

    /// Never null; of kind Void for a function that returns nothing.
    virtual const TypeInterface* resultType() const = 0;

    /// In the order of the parameters; empty for a function without any.
    virtual std::vector<const TypeInterface*> parameterTypes() const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit FunctionTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Function, wordSize)
    {
    }
};

/// Signals, described by what they carry.
class ZU_EXPORT SignalTypeInterface : public TypeInterface
{
public:
    ~SignalTypeInterface() override;

    /// The types of what the signal carries, in order; empty when it carries nothing.
    virtual std::vector<const TypeInterface*> parameterTypes() const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit SignalTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Signal, wordSize)
    {
    }
};

/// Properties, described by the type of their value.
class ZU_EXPORT PropertyTypeInterface : public TypeInterface
{
public:
    ~PropertyTypeInterface() override;

    /// The type of the value; never null.
    virtual const TypeInterface* valueType() const = 0;

protected:
    /// For implementations, which say their wordSize().
    explicit PropertyTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Property, wordSize)
    {
    }
};

} // namespace zu
