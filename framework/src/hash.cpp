#include "content.hpp"
#include "number.hpp"

#include <zu/any_value.hpp>
#include <zu/type/struct.hpp>

#include <boost/container_hash/hash.hpp>

#include <functional>
#include <string_view>

namespace zu {

using detail::as;
using detail::CheckedStep;
using detail::Group;

namespace {

std::size_t combined(std::size_t hash, std::size_t next)
{
    boost::hash_combine(hash, next);
    return hash;
}

/// Fits orderOfUnreadable(): what moves with its holder is told by its bytes, what stays by its place.
std::size_t hashOfUnreadable(const AnyReferenceBase& value)
{
    if (value.type()->wordSize() != 0)
        return std::hash<std::string_view>()(detail::bytesInPlace(value));
    return std::hash<const void*>()(value.address());
}

class Hash
{
public:
    std::size_t run(const AnyReferenceBase& value)
    {
        const CheckedStep step(m_walk, value);
        if (detail::isWrapper(value.kind()))
            return run(value.content());
        const Group group = detail::groupOf(value);
        return combined(static_cast<std::size_t>(group), within(group, value));
    }

private:
    std::size_t within(Group group, const AnyReferenceBase& value)
    {
        switch (group) {
        case Group::Nothing:
        case Group::Void:
            return 0;
        case Group::Number:
            return detail::hashOfNumber(detail::numberOf(value));
        case Group::Text:
            return std::hash<std::string_view>()(value.text());
        case Group::Raw:
            return std::hash<std::string_view>()(value.rawBuffer());
        case Group::Pointer:
            return std::hash<const void*>()(detail::pointeeOf(value));
        case Group::Unreadable:
            return hashOfUnreadable(value);
        case Group::List:
            return ofList(value);
        case Group::Map:
            return ofMap(value);
        case Group::Tuple:
            return ofTuple(value);
        }
        return 0;
    }

    std::size_t ofList(const AnyReferenceBase& list)
    {
        std::size_t hash = 0;
        for (const AnyReference element : list)
            hash = combined(hash, run(element));
        return hash;
    }

    /// The same in whatever order the entries come.
    std::size_t ofMap(const AnyReferenceBase& map)
    {
        std::size_t sum = 0;
        for (const auto& [key, value] : detail::entriesOf(map)) {
            const std::size_t hashOfKey = run(key);
            sum += combined(hashOfKey, run(value));
        }
        return sum;
    }

    std::size_t ofTuple(const AnyReferenceBase& tuple)
    {
        const auto& type = as<StructTypeInterface>(tuple);
        std::size_t hash = std::hash<std::string>()(type.className());
        for (std::size_t i = 0; i != type.memberCount(); ++i)
            hash = combined(hash, run(detail::memberAt(tuple, i)));
        return hash;
    }

    Walk m_walk;
};

} // namespace

std::size_t AnyReferenceBase::hash() const { return Hash().run(*this); }

} // namespace zu
