#include "log_handlers.hpp"

#include <algorithm>

namespace zu::log {

HandlerList& HandlerList::instance()
{
    static auto& list = *new HandlerList;
    return list;
}

HandlerList::HandlerList() { add(standardErrorHandler()); }

HandlerId HandlerList::add(Handler handler)
{
    const std::lock_guard lock(m_mutex);
    const HandlerId id{m_nextId++};
    m_entries.push_back(std::make_shared<Entry>(Entry{id, std::move(handler)}));
    return id;
}

bool HandlerList::remove(HandlerId id)
{
    const std::lock_guard lock(m_mutex);
    const auto found =
        std::find_if(m_entries.begin(), m_entries.end(), [id](const auto& entry) { return entry->id == id; });
    if (found == m_entries.end())
        return false;
    (*found)->removed = true;
    m_entries.erase(found);
    return true;
}

void HandlerList::handle(const Record& record)
{
    const std::lock_guard lock(m_mutex);
    // A copy, because the handlers may change the list.
    const std::vector<std::shared_ptr<Entry>> entries = m_entries;
    for (const auto& entry : entries) {
        if (entry->removed || !entry->handler)
            continue;
        try {
            entry->handler(record);
        } catch (...) { // NOLINT(bugprone-empty-catch): a handler's failure must not become the logging caller's
        }
    }
}

HandlerId addHandler(Handler handler) { return HandlerList::instance().add(std::move(handler)); }

bool removeHandler(HandlerId id) { return HandlerList::instance().remove(id); }

} // namespace zu::log
