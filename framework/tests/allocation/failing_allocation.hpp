#pragma once

#include <cstddef>
#include <new>

namespace zu {

/// Tells by the address of the code that asks for memory whether it may be refused.
using AllocationPredicate = bool (*)(const void* caller);

/// While it lives, one allocation of this thread fails: the one after `allowed` others, or the first after them that
/// may fail. Without a predicate any may. Replaces the operators new of the program.
class FailingAllocation
{
public:
    explicit FailingAllocation(std::size_t allowed, AllocationPredicate mayFail = nullptr);
    ~FailingAllocation();
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;

    /// Whether so many allocations were asked for that one failed.
    bool hasFailed() const;
};

/// Does `work` again and again, with each of its allocations that may fail failing once, then without a failure.
/// `prepare` comes before each attempt, `check(done)` behind it: what failed has to be as it was.
/// @return the number of allocations that failed.
template <class Prepare, class Work, class Check>
std::size_t withEachAllocationFailing(Prepare prepare, Work work, Check check, AllocationPredicate mayFail = nullptr)
{
    for (std::size_t allowed = 0;; ++allowed) {
        prepare();
        bool done = false;
        bool failed = false;
        {
            const FailingAllocation failing(allowed, mayFail);
            try {
                work();
                done = true;
            } catch (const std::bad_alloc&) {
            }
            failed = failing.hasFailed();
        }
        check(done);
        if (!failed)
            return allowed;
    }
}

} // namespace zu
