#include "conversion_parts.hpp"

#include <zu/type/map.hpp>
#include <zu/type/struct.hpp>

#include <map>
#include <string>

namespace zu::detail {

namespace {

/// The entries of a map by the texts of their keys.
struct Named
{
    Conversion& conversion;
    std::map<std::string, AnyReference, std::less<>> values;

    static bool collect(void* context, const AnyReference& key, const AnyReference& value)
    {
        auto& named = *static_cast<Named*>(context);
        const AnyReference plain = unwrapped(key);
        if (plain.kind() != TypeKind::String)
            return named.conversion.fail([] { return std::string("a key is no member's name"); });
        named.values.emplace(plain.text(), value);
        return true;
    }
};

std::vector<AnyReference> membersOf(const AnyReferenceBase& tuple)
{
    std::vector<AnyReference> members = as<StructTypeInterface>(tuple).values(const_cast<void*>(tuple.address()));
    for (AnyReference& member : members)
        member = member.readOnly();
    return members;
}

/// A struct without members has names, too: none is missing.
bool isNamed(const StructTypeInterface& type) { return !type.className().empty() || !type.elementsName().empty(); }

bool haveNames(Conversion& conversion, const StructTypeInterface& type)
{
    if (!isNamed(type))
        return conversion.fail([&] { return "the members of " + type.name() + " have no names"; });
    const std::size_t names = type.elementsName().size();
    const std::size_t members = type.memberCount();
    return names == members || conversion.fail([&] {
        return type.name() + " has " + std::to_string(members) + " members and " + std::to_string(names) + " names";
    });
}

/// Sets the members one by one, leaving those before one that fails changed.
bool setMembersInPlace(Conversion& conversion, const std::vector<AnyReference>& sources, const AnyReference& target)
{
    const auto& type = as<StructTypeInterface>(target);
    const std::vector<AnyReference> members = type.values(target.writableAddress());
    if (members.size() != sources.size())
        return conversion.fail([&] {
            return std::to_string(sources.size()) + " values do not make the " + std::to_string(members.size()) +
                   " members of " + type.name();
        });
    const std::vector<std::string>& names = type.elementsName();
    for (std::size_t i = 0; i != members.size(); ++i) {
        const auto step = [&] { return i < names.size() ? '.' + names[i] : stepTo(i); };
        if (!conversion.runPart(sources[i], members[i], step))
            return false;
    }
    return true;
}

/// Sets the named members of `target` from values of just those names.
bool setNamed(Conversion& conversion, Named& named, const AnyReference& target)
{
    std::vector<AnyReference> ordered;
    for (const std::string& name : as<StructTypeInterface>(target).elementsName()) {
        const auto found = named.values.find(name);
        if (found == named.values.end())
            return conversion.fail([&name] { return "there is no value for the member " + name; });
        ordered.push_back(found->second);
        named.values.erase(found);
    }
    if (!named.values.empty())
        return conversion.fail([&] { return "there is no member for the value " + named.values.begin()->first; });
    return setMembers(conversion, ordered, target);
}

} // namespace

bool setMembers(Conversion& conversion, const std::vector<AnyReference>& sources, const AnyReference& target)
{
    if (conversion.isWithinScratch())
        return setMembersInPlace(conversion, sources, target);
    // A copy and not a default value: what is no member stays as it is.
    const Scratch object(target);
    return setMembersInPlace(conversion, sources, object.reference()) && object.moveTo(conversion, target);
}

bool tupleToTuple(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& from = as<StructTypeInterface>(source);
    const auto& to = as<StructTypeInterface>(target);
    std::vector<AnyReference> members = membersOf(source);
    if (!isNamed(from) || !isNamed(to))
        return setMembers(conversion, members, target);
    if (!haveNames(conversion, from) || !haveNames(conversion, to))
        return false;
    Named named{conversion, {}};
    for (std::size_t i = 0; i != members.size(); ++i)
        named.values.emplace(from.elementsName()[i], members[i]);
    return setNamed(conversion, named, target);
}

bool tupleToMap(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    const auto& from = as<StructTypeInterface>(source);
    const auto& to = as<MapTypeInterface>(target);
    if (!haveNames(conversion, from))
        return false;
    const Scratch map(&to);
    Scratch key(to.keyType());
    Scratch value(to.valueType());
    if (!map || !key || !value)
        return failForDefault(conversion, !map ? to : !key ? *to.keyType() : *to.valueType());
    MapFill fill{conversion, to, map, key, value};
    const std::vector<AnyReference> members = membersOf(source);
    for (std::size_t i = 0; i != members.size(); ++i) {
        if (!MapFill::insert(&fill, AnyReference::from(from.elementsName()[i]), members[i]))
            return false;
    }
    return map.moveTo(conversion, target);
}

bool mapToTuple(Conversion& conversion, const AnyReferenceBase& source, const AnyReference& target)
{
    if (!haveNames(conversion, as<StructTypeInterface>(target)))
        return false;
    Named named{conversion, {}};
    return as<MapTypeInterface>(source).forEach(source.address(), &Named::collect, &named) &&
           setNamed(conversion, named, target);
}

} // namespace zu::detail
