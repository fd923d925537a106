#pragma once

#include <zu/log.hpp>

#include <memory>
#include <mutex>
#include <vector>

namespace zu::log {

/// The process's handlers, in the order in which they were added.
class HandlerList
{
public:
    /// Never destroyed: records may be written until the very end of the process.
    static HandlerList& instance();

    HandlerId add(Handler handler);
    bool remove(HandlerId id);

    void handle(const Record& record);

private:
    struct Entry
    {
        HandlerId id;
        Handler handler;
        bool removed = false;
    };

    HandlerList();

    /// Held while handlers run, so that a removed one has ended. Recursive, because a handler may write records and add
    /// and remove handlers; one for all, because two would be taken in two orders.
    std::recursive_mutex m_mutex;
    std::uint64_t m_nextId = 0;
    std::vector<std::shared_ptr<Entry>> m_entries;
};

} // namespace zu::log
