#include "log_handlers.hpp"

#include <zu/log.hpp>

#include <map>
#include <memory>
#include <mutex>

namespace zu::log {

std::string_view levelName(Level level) noexcept
{
    switch (level) {
    case Level::Silent:
        return "silent";
    case Level::Fatal:
        return "fatal";
    case Level::Error:
        return "error";
    case Level::Warning:
        return "warning";
    case Level::Info:
        return "info";
    case Level::Verbose:
        return "verbose";
    case Level::Debug:
        return "debug";
    }
    return {};
}

class CategoryRegistry
{
public:
    /// Never destroyed: records may be written until the very end of the process.
    static CategoryRegistry& instance()
    {
        static auto& registry = *new CategoryRegistry;
        return registry;
    }

    Category& add(std::string_view name)
    {
        const std::lock_guard lock(m_mutex);
        const auto found = m_categories.find(name);
        if (found != m_categories.end())
            return *found->second;
        std::unique_ptr<Category> category(new Category(name));
        return *m_categories.emplace(category->name(), std::move(category)).first->second;
    }

private:
    std::mutex m_mutex;
    std::map<std::string, std::unique_ptr<Category>, std::less<>> m_categories;
};

Category& addCategory(std::string_view name) { return CategoryRegistry::instance().add(name); }

void write(const Category& category, Level level, const Origin& origin, std::string_view message)
{
    if (category.lets(level))
        HandlerList::instance().handle(Record{level, category.name(), message, origin});
}

void write(std::string_view category, Level level, const Origin& origin, std::string_view message)
{
    write(addCategory(category), level, origin, message);
}

} // namespace zu::log
