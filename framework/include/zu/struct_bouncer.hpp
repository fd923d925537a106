#pragma once

#include <zu/any_value.hpp>

#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace zu {

/// The interface of a public class whose data stand in a private record, itself a registered struct: it has a class
/// name of its own, and every question about members goes to the record's interface. Copying and destroying are those
/// of the public class; assigning is that of the record, which stays the object's own.
///
/// The record's interface is looked up on first use, so that the two may be registered in any order.
template <class Public, class Private>
class StructTypeInterfaceBouncer final : public Native<Public, StructTypeInterface>
{
public:
    /// Gives the private record that a public object owns.
    using Record = Private* (*)(Public*);

    /// Throws std::invalid_argument for an empty class name. `recordOf` gives null for an object without record.
    StructTypeInterfaceBouncer(std::string className, Record recordOf)
        : m_className(std::move(className)), m_recordOf(recordOf)
    {
        detail::checkNames(m_className, {});
    }

    const std::string& className() const override { return m_className; }
    const std::vector<std::string>& elementsName() const override { return recordType().elementsName(); }
    std::vector<const TypeInterface*> memberTypes() const override { return recordType().memberTypes(); }
    std::size_t memberCount() const override { return recordType().memberCount(); }

    /// Throws std::runtime_error, like everything that needs the record, when the object has none.
    AnyReference element(void* object, std::size_t index) const override
    {
        return recordType().element(recordIn(object), index);
    }
    std::vector<AnyReference> values(void* object) const override { return recordType().values(recordIn(object)); }

    bool assign(void* target, const void* source) const override
    {
        return recordType().assign(recordIn(target), recordIn(const_cast<void*>(source)));
    }
    bool assignMoved(void* target, void* source) const override
    {
        return recordType().assignMoved(recordIn(target), recordIn(source));
    }

private:
    static const StructTypeInterface& recordType()
    {
        const TypeInterface* type = typeOf<Private>();
        if (type->kind() != TypeKind::Tuple)
            throw std::logic_error(type->name() + " is not registered as a struct");
        return static_cast<const StructTypeInterface&>(*type);
    }

    Private* recordIn(void* object) const
    {
        Private* record = m_recordOf(static_cast<Public*>(object));
        if (!record)
            throw std::runtime_error("an object of " + m_className + " has no record");
        return record;
    }

    const std::string m_className;
    const Record m_recordOf;
};

/// Registers a public class through its private record, which a function gives:
///
///     registerBouncer<Account>("::bank::Account", [](Account* account) { return account->record(); });
///
/// What it returns and throws is that of registerStruct<T>().
template <class Public, class RecordOf>
bool registerBouncer(std::string className, RecordOf recordOf)
{
    using Private = std::remove_pointer_t<std::invoke_result_t<RecordOf, Public*>>;
    return detail::registerOwned(
        std::make_unique<StructTypeInterfaceBouncer<Public, Private>>(std::move(className), recordOf));
}

} // namespace zu
