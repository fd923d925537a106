#include "settled_type.hpp"

#include <zu/registry.hpp>
#include <zu/value/type_of.hpp>

#include <algorithm>
#include <condition_variable>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <vector>

namespace zu::detail {

namespace {

/// Guards the state of every slot while none is ready; making itself runs outside, so that slots do not wait for
/// others.
class Making
{
public:
    /// Never destroyed: types may be made until the very end of the process.
    static Making& instance()
    {
        static auto& making = *new Making;
        return making;
    }

    /// Waits until nobody makes the interface of `asked`.
    /// Throws std::logic_error when the maker waits, by whatever way, for this thread.
    void waitFor(std::unique_lock<std::mutex>& lock, const TypeSlot* asked)
    {
        while (isMade(asked)) {
            refuseCircle(asked);
            m_waiting.push_back({asked, find(m_tasks, asked)->info, std::this_thread::get_id()});
            m_ended.wait(lock);
            removeMine(m_waiting, asked);
        }
    }

    void begin(const TypeSlot* slot, const TypeInfo& info)
    {
        m_tasks.push_back({slot, info, std::this_thread::get_id()});
    }

    void end(const TypeSlot* slot) noexcept
    {
        removeMine(m_tasks, slot);
        m_ended.notify_all();
    }

    std::mutex mutex;

private:
    /// A slot that a thread makes the interface for, or waits for.
    struct Task
    {
        const TypeSlot* slot;
        TypeInfo info;
        std::thread::id thread;
    };
    using Tasks = std::vector<Task>;

    static Tasks::const_iterator find(const Tasks& tasks, const TypeSlot* slot)
    {
        return std::find_if(tasks.begin(), tasks.end(), [slot](const Task& task) { return task.slot == slot; });
    }

    static void removeMine(Tasks& tasks, const TypeSlot* slot) noexcept
    {
        tasks.erase(std::find_if(tasks.begin(), tasks.end(), [slot](const Task& task) {
            return task.slot == slot && task.thread == std::this_thread::get_id();
        }));
    }

    bool isMade(const TypeSlot* slot) const { return find(m_tasks, slot) != m_tasks.end(); }

    /// Follows who waits for whom, beginning with the thread that makes the interface of `asked`.
    void refuseCircle(const TypeSlot* asked) const
    {
        std::string circle;
        for (const TypeSlot* slot = asked; isMade(slot);) {
            const auto first = find(m_tasks, slot);
            for (auto task = first; task != m_tasks.end(); ++task)
                circle += task->thread == first->thread ? task->info.name() + " -> " : "";
            if (first->thread == std::this_thread::get_id())
                throw std::logic_error("the descriptions of types ask for each other: " + circle +
                                       find(m_tasks, asked)->info.name());
            const auto waiting = std::find_if(m_waiting.begin(), m_waiting.end(),
                                              [&first](const Task& task) { return task.thread == first->thread; });
            if (waiting == m_waiting.end())
                return;
            slot = waiting->slot;
        }
    }

    std::condition_variable m_ended;
    Tasks m_tasks; ///< each thread's in the order in which one asked for the next
    Tasks m_waiting;
};

const TypeInterface* registeredOrMade(const TypeInfo& info, TypeSlot::Make make)
{
    if (const TypeInterface* registered = getType(info))
        return registered;
    if (info.isAnonymous()) {
        throw std::invalid_argument(info.name() + " stands in an anonymous namespace, which the type system cannot "
                                                  "tell from another library's; give the namespace a name");
    }
    RawNames rawName{info.index().raw_name()};
    return settledType(info, make(), rawName);
}

} // namespace

const TypeInterface* TypeSlot::resolve(const TypeInfo& info, Make make)
{
    Making& making = Making::instance();
    std::unique_lock lock(making.mutex);
    making.waitFor(lock, this);
    if (const TypeInterface* type = ready())
        return type;
    making.begin(this, info);
    lock.unlock();

    const auto end = [&](const TypeInterface* type) {
        lock.lock();
        m_type.store(type, std::memory_order_release);
        making.end(this);
    };
    const TypeInterface* type = nullptr;
    try {
        type = registeredOrMade(info, make);
    } catch (...) {
        end(nullptr);
        throw;
    }
    end(type);
    return type;
}

} // namespace zu::detail
