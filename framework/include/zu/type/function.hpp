#pragma once

#include <zu/type/type_interface.hpp>

#include <vector>

namespace zu {

/// Functions, described by their signature; the type system does not call them.
class ZU_EXPORT FunctionTypeInterface : public TypeInterface
{
public:
    ~FunctionTypeInterface() override;

    virtual const TypeInterface* resultType() const = 0;
    virtual std::vector<const TypeInterface*> parameterTypes() const = 0;

protected:
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

    virtual std::vector<const TypeInterface*> parameterTypes() const = 0;

protected:
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

    virtual const TypeInterface* valueType() const = 0;

protected:
    explicit PropertyTypeInterface(const TypeInfo& info, std::size_t wordSize = 0)
        : TypeInterface(info, TypeKind::Property, wordSize)
    {
    }
};

} // namespace zu
