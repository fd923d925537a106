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

    bool addType(const TypeInterface* type)
    {
        const std::unique_lock lock(m_mutex);
        if (!m_byInfo.emplace(type->info(), type).second)
            return false;
        m_byName.emplace(type->name(), type);
        return true;
    }

    /// @return the interface that has the name now, and whether it was added.
    std::pair<const TypeInterface*, bool> addName(const TypeInterface* type)
    {
        const std::unique_lock lock(m_mutex);
        const auto [named, added] = m_byName.emplace(type->name(), type);
        return {named->second, added};
    }

    /// Adds under both keys or under none; the name may be that of another interface of the same type.
    /// @return the interface that has the name now.
    const TypeInterface* addStruct(const TypeInterface* type)
    {
        const std::unique_lock lock(m_mutex);
        const auto named = m_byName.find(type->name());
        if (named != m_byName.end() && named->second->info() != type->info())
            return named->second;
        const auto [known, added] = m_byInfo.emplace(type->info(), type);
        if (!added)
            return known->second;
        if (named == m_byName.end())
            m_byName.emplace(type->name(), type);
        return type;
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
    mutable std::shared_mutex m_mutex;
    std::unordered_map<TypeInfo, const TypeInterface*> m_byInfo;
    std::map<std::string, const TypeInterface*, std::less<>> m_byName;
};

std::string takenMessage(const TypeInterface& type, const TypeInterface& owner)
{
    std::string message = "the name ";
    message.append(type.name()).append(" of ").append(type.info().name()).append(" is that of ");
    return message.append(owner.info().name()).append(" already");
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
    return Registry::instance().addType(type);
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

bool registerOwned(std::unique_ptr<const StructTypeInterface> type)
{
    constexpr auto k_function = "zu::registerStruct";
    if (type->info().isAnonymous())
        return refuse(k_function, anonymousMessage(type->info()));
    const TypeInterface* owner = Registry::instance().addStruct(type.get());
    if (owner->info() != type->info())
        return refuse(k_function, takenMessage(*type, *owner));
    if (owner != type.get())
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
