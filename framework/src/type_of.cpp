#include <zu/registry.hpp>
#include <zu/type_of.hpp>

#include <condition_variable>
#include <mutex>
#include <stdexcept>

namespace zu::detail {

namespace {

/// Guards the state of every slot while none is ready; making itself runs outside, so that slots do not wait for
/// others.
struct Making
{
    std::mutex mutex;
    std::condition_variable ended;

    /// Never destroyed: types may be made until the very end of the process.
    static Making& instance()
    {
        static auto& making = *new Making;
        return making;
    }
};

const TypeInterface* registeredOrMade(const TypeInfo& info, TypeSlot::Make make)
{
    if (const TypeInterface* registered = getType(info))
        return registered;
    if (info.isAnonymous()) {
        throw std::invalid_argument(info.name() + " stands in an anonymous namespace, which the type system cannot "
                                                  "tell from another library's; give the namespace a name");
    }
    return make();
}

} // namespace

const TypeInterface* TypeSlot::resolve(const TypeInfo& info, Make make)
{
    Making& making = Making::instance();
    std::unique_lock lock(making.mutex);
    making.ended.wait(lock, [this] { return !m_beingMade; });
    if (const TypeInterface* type = ready())
        return type;
    m_beingMade = true;
    lock.unlock();

    const auto end = [&](const TypeInterface* type) {
        lock.lock();
        m_type.store(type, std::memory_order_release);
        m_beingMade = false;
        making.ended.notify_all();
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
