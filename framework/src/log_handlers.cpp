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
    auto changed = std::make_shared<Entries>(*m_entries);
    changed->push_back(std::make_shared<Entry>(id, std::move(handler)));
    m_entries = std::move(changed);
    return id;
}

bool HandlerList::remove(HandlerId id)
{
    std::shared_ptr<Entry> entry;
    {
        const std::lock_guard lock(m_mutex);
        auto changed = std::make_shared<Entries>(*m_entries);
        const auto found = std::find_if(changed->begin(), changed->end(), [id](const auto& e) { return e->id == id; });
        if (found == changed->end())
            return false;
        entry = *found;
        changed->erase(found);
        m_entries = std::move(changed);
    }
    const std::lock_guard callEnded(entry->running);
    entry->removed = true;
    return true;
}

void HandlerList::handle(const Record& record)
{
    const std::shared_ptr<const Entries> current = entries();
    for (const auto& entry : *current) {
        const std::lock_guard lock(entry->running);
        if (entry->removed || !entry->handler)
            continue;
        try {
            entry->handler(record);
        } catch (...) { // NOLINT(bugprone-empty-catch): a handler's failure must not become the logging caller's
        }
    }
}

std::shared_ptr<const HandlerList::Entries> HandlerList::entries() const
{
    const std::lock_guard lock(m_mutex);
    return m_entries;
}

HandlerId addHandler(Handler handler) { return HandlerList::instance().add(std::move(handler)); }

bool removeHandler(HandlerId id) { return HandlerList::instance().remove(id); }

} // namespace zu::log
