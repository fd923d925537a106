#include "settled_type.hpp"

#include <zu/log.hpp>
#include <zu/native/struct.hpp>
#include <zu/registry.hpp>

#include <algorithm>
#include <map>
#include <mutex>
#include <set>
#include <shared_mutex>
#include <stdexcept>
#include <unordered_map>
#include <utility>

namespace zu {

namespace {

bool refuse(const char* function, const std::string& why)
{
    static log::Category& category = log::addCategory("zutype.registry");
    log::write(category, log::Level::Warning, {"src/registry", function, __LINE__}, why);
    return false;
}

std::string anonymousMessage(const TypeInfo& info)
{
    return info.name() + " stands in an anonymous namespace, which the type system cannot tell from another library's";
}

class Registry
{
public:
    /// Never destroyed: types may be asked for until the very end of the process.
    static Registry& instance()
    {
        static auto& registry = *new Registry;
        return registry;
    }

    enum class Answer
    {
        Added,
        Taken,  ///< by this interface or another
        TooLate ///< the C++ type was used before
    };

    Answer addType(const TypeInterface* type)
    {
        ByName named = namedAlone(type);
        const std::unique_lock lock(m_mutex);
        const Answer answer = addIdentity(type);
        if (answer == Answer::Added)
            m_byName.merge(named);
        return answer;
    }

    /// @return the interface that has the name now, and whether it was added.
    std::pair<const TypeInterface*, bool> addName(const TypeInterface* type)
    {
        ByName named = namedAlone(type);
        const std::unique_lock lock(m_mutex);
        const auto added = m_byName.insert(named.extract(named.begin()));
        return {added.position->second, added.inserted};
    }

    /// Adds under both keys or under none; the name may be that of another interface of the same type.
    /// @return what came of it, and the interface that has the name now when it is another type's.
    std::pair<Answer, const TypeInterface*> addStruct(const TypeInterface* type)
    {
        ByName named = namedAlone(type);
        const std::unique_lock lock(m_mutex);
        const auto owner = m_byName.find(named.begin()->first);
        if (owner != m_byName.end() && owner->second->info() != type->info())
            return {Answer::Taken, owner->second};
        const Answer answer = addIdentity(type);
        if (answer == Answer::Added)
            m_byName.merge(named);
        return {answer, nullptr};
    }

    const TypeInterface* settle(const TypeInfo& info, const TypeInterface* made, detail::RawNames& rawName)
    {
        const std::unique_lock lock(m_mutex);
        const auto registered = m_byInfo.find(info);
        if (registered != m_byInfo.end())
            return registered->second;
        m_made.merge(rawName);
        return made;
    }

    const TypeInterface* get(const TypeInfo& info) const
    {
        const std::shared_lock lock(m_mutex);
        const auto found = m_byInfo.find(info);
        return found == m_byInfo.end() ? nullptr : found->second;
    }

    const TypeInterface* find(std::string_view name) const
    {
        const std::shared_lock lock(m_mutex);
        const auto found = m_byName.find(name);
        return found == m_byName.end() ? nullptr : found->second;
    }

private:
    using ByName = std::map<std::string, const TypeInterface*, std::less<>>;

    /// The entry of one interface, made before anything is locked: names may be composed of those of other types, which
    /// are looked up here. What remains to be done with it needs no memory.
    static ByName namedAlone(const TypeInterface* type) { return {{type->name(), type}}; }

    /// To be called under the lock.
    Answer addIdentity(const TypeInterface* type)
    {
        if (m_byInfo.count(type->info()) != 0)
            return Answer::Taken;
        if (m_made.count(type->info().index().raw_name()) != 0)
            return Answer::TooLate;
        m_byInfo.emplace(type->info(), type);
        return Answer::Added;
    }

    mutable std::shared_mutex m_mutex;
    std::unordered_map<TypeInfo, const TypeInterface*> m_byInfo;
    ByName m_byName;
    /// The types whose interface some library has made; by name, for the library may be unloaded.
    detail::RawNames m_made;
};

std::string takenMessage(const TypeInterface& type, const TypeInterface& owner)
{
    std::string message = "the name ";
    message.append(type.name()).append(" of ").append(type.info().name()).append(" is that of ");
    return message.append(owner.info().name()).append(" already");
}

bool accept(const char* function, const TypeInterface& type, Registry::Answer answer)
{
    if (answer == Registry::Answer::TooLate) {
        return refuse(function,
                      type.info().name() +
                          " was used before it was registered, so that it is known as something else already");
    }
    return answer == Registry::Answer::Added;
}

} // namespace

bool registerType(const TypeInfo& info, const TypeInterface* type)
{
    constexpr auto k_function = "zu::registerType";
    if (!type)
        return refuse(k_function, "no interface was given for " + info.name());
    if (type->info() != info)
        return refuse(k_function, "the interface given for " + info.name() + " is that of " + type->info().name());
    if (info.isAnonymous())
        return refuse(k_function, anonymousMessage(info));
    return accept(k_function, *type, Registry::instance().addType(type));
}

bool registerStruct(const TypeInterface* type)
{
    constexpr auto k_function = "zu::registerStruct";
    if (!type)
        return refuse(k_function, "no interface was given");
    if (type->name().empty())
        return refuse(k_function, "the name given for " + type->info().name() + " is empty");
    if (type->info().isAnonymous())
        return refuse(k_function, anonymousMessage(type->info()));
    const auto [owner, added] = Registry::instance().addName(type);
    if (owner->info() != type->info())
        return refuse(k_function, takenMessage(*type, *owner));
    return added;
}

const TypeInterface* getType(const TypeInfo& info) { return Registry::instance().get(info); }

const TypeInterface* findType(std::string_view name) { return Registry::instance().find(name); }

namespace detail {

const TypeInterface* settledType(const TypeInfo& info, const TypeInterface* made, RawNames& rawName)
{
    return Registry::instance().settle(info, made, rawName);
}

bool registerOwned(std::unique_ptr<const StructTypeInterface> type)
{
    constexpr auto k_function = "zu::registerStruct";
    if (type->info().isAnonymous())
        return refuse(k_function, anonymousMessage(type->info()));
    const auto [answer, owner] = Registry::instance().addStruct(type.get());
    if (owner)
        return refuse(k_function, takenMessage(*type, *owner));
    if (!accept(k_function, *type, answer))
        return false;
    static_cast<void>(type.release()); // the registry's for the life of the process
    return true;
}

void checkNames(const std::string& className, const std::vector<std::string>& memberNames)
{
    if (className.empty())
        throw std::invalid_argument("a struct needs a class name");
    if (std::find(memberNames.begin(), memberNames.end(), std::string()) != memberNames.end())
        throw std::invalid_argument("a member of " + className + " has no name");
    std::set<std::string_view> seen;
    const auto again = std::find_if(memberNames.begin(), memberNames.end(),
                                    [&seen](const std::string& name) { return !seen.insert(name).second; });
    if (again != memberNames.end())
        throw std::invalid_argument("the member " + *again + " of " + className + " is there twice");
}

} // namespace detail
} // namespace zu
