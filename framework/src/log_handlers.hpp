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
        Entry(HandlerId entryId, Handler entryHandler) : id(entryId), handler(std::move(entryHandler)) {}

        const HandlerId id;
        const Handler handler;
        /// Recursive, because a handler may write records and remove itself.
        std::recursive_mutex running;
        bool removed = false;
    };
    using Entries = std::vector<std::shared_ptr<Entry>>;

    HandlerList();
    std::shared_ptr<const Entries> entries() const;

    mutable std::mutex m_mutex;
    std::uint64_t m_nextId = 0;
    /// Replaced as a whole, never changed, so that records are handled without holding the lock.
    std::shared_ptr<const Entries> m_entries = std::make_shared<Entries>();
};

} // namespace zu::log
