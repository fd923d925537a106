#pragma once

#include <zu/native/native.hpp>
#include <zu/registry.hpp>
#include <zu/type/struct.hpp>
#include <zu/value/any_reference.hpp>

#include <cstring>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace zu {

/// A member of the class T (or of a base of it) under the name that it is known by, which need not be its own.
template <class T>
class Member
{
public:
    /// Implicit, so that a list of members reads {{"x", &Point::x}, {"y", &Point::y}}.
    template <class M, class Class>
    Member(std::string name, M Class::*member)
        : m_name(std::move(name)), m_type(&typeOf<M>), m_reference(&Member::template reference<M, Class>)
    {
        static_assert(std::is_object_v<M>, "a member of a struct is data");
        static_assert(std::is_base_of_v<Class, T>, "the member is another class's");
        static_assert(sizeof member == sizeof m_pointer);
        std::memcpy(m_pointer, &member, sizeof member);
    }

    /// The name that was given.
    const std::string& name() const noexcept { return m_name; }

    /// Asked for anew on every call: the type may become known later than the member.
    const TypeInterface* type() const { return m_type(); }

    /// The member in `object`; for reading only when it is a const one.
    AnyReference of(T& object) const { return m_reference(*this, object); }

private:
    template <class M, class Class>
    static AnyReference reference(const Member& self, T& object)
    {
        M Class::*member;
        std::memcpy(&member, self.m_pointer, sizeof member);
        return AnyReference::from(object.*member);
    }

    std::string m_name;
    const TypeInterface* (*m_type)();
    AnyReference (*m_reference)(const Member& self, T& object);
    unsigned char m_pointer[sizeof(int T::*)]; ///< the pointer to the member, whose type m_reference knows
};

/// What the type system is told about a struct: its class name, used exactly as it is, and its members in order.
template <class T>
struct Schema
{
    std::string className;          ///< not empty, and no other type's
    std::vector<Member<T>> members; ///< no two of one name; there may be none
};

/// Specialised beside the class, wherever it is used with the type system, this makes T known on its first use:
///
///     template <>
///     struct zu::StructSchema<geometry::Point>
///     {
///         static Schema<geometry::Point> describe()
///         {
///             return {"::geometry::Point", {{"x", &geometry::Point::x}, {"y", &geometry::Point::y}}};
///         }
///     };
///
/// A class whose members are private makes it a friend. The class becomes known under its class name too.
template <class T>
struct StructSchema;

namespace detail {

/// Files a struct under its identity and its class name, or neither and deletes it.
ZU_EXPORT bool registerOwned(std::unique_ptr<const StructTypeInterface> type);

/// Throws std::invalid_argument for an empty class name, an empty member name and one that is there twice.
ZU_EXPORT void checkNames(const std::string& className, const std::vector<std::string>& memberNames);

template <class T>
class NativeStruct final : public Native<T, StructTypeInterface>
{
public:
    explicit NativeStruct(Schema<T> schema) : m_schema(std::move(schema))
    {
        for (const auto& member : m_schema.members)
            m_names.push_back(member.name());
        checkNames(m_schema.className, m_names);
    }

    const std::string& className() const override { return m_schema.className; }
    const std::vector<std::string>& elementsName() const override { return m_names; }

    std::vector<const TypeInterface*> memberTypes() const override
    {
        std::vector<const TypeInterface*> types;
        types.reserve(m_schema.members.size());
        for (const auto& member : m_schema.members)
            types.push_back(member.type());
        return types;
    }

    std::size_t memberCount() const override { return m_names.size(); }

    AnyReference element(void* object, std::size_t index) const override
    {
        return m_schema.members[index].of(this->object(object));
    }

    std::vector<AnyReference> values(void* object) const override
    {
        std::vector<AnyReference> values;
        values.reserve(m_schema.members.size());
        for (const auto& member : m_schema.members)
            values.push_back(member.of(this->object(object)));
        return values;
    }

private:
    const Schema<T> m_schema;
    std::vector<std::string> m_names;
};

} // namespace detail

/// Makes the interface of T as a struct and registers it nowhere: for a NativeType<T> of one's own. Throws
/// std::invalid_argument when the class name or a member's name is empty or a member's name is there twice.
template <class T>
std::unique_ptr<const StructTypeInterface> makeStruct(std::string className, std::vector<Member<T>> members)
{
    return std::make_unique<detail::NativeStruct<T>>(Schema<T>{std::move(className), std::move(members)});
}

/// Registers T as a struct at once, under its identity and its class name; to be called before the first use of T:
///
///     registerStruct<Point>("::geometry::Point", {{"x", &Point::x}, {"y", &Point::y}});
///
/// @return false, and nothing is changed, when T is registered already; the same, with a message to the category
/// "zutype.registry", when T was used before, when the class name is another type's or T stands in an anonymous
/// namespace.
/// Throws std::invalid_argument when the class name or a member's name is empty or a member's name is there twice.
template <class T>
bool registerStruct(std::string className, std::vector<Member<T>> members)
{
    return detail::registerOwned(makeStruct<T>(std::move(className), std::move(members)));
}

/// Structs with a schema.
template <class T>
struct NativeType<T, std::void_t<decltype(StructSchema<T>::describe())>>
{
    /// Makes the struct known under its class name too, unless that is taken. Throws what describe() throws, and like
    /// makeStruct().
    static const TypeInterface* make()
    {
        auto type = std::make_unique<detail::NativeStruct<T>>(StructSchema<T>::describe());
        registerStruct(type.get());
        return type.release();
    }
};

} // namespace zu
