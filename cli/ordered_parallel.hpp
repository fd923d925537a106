#pragma once

#include <atomic>
#include <condition_variable>
#include <exception>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

namespace zu::cli {

/// Calls `make(i)` for each i below `count`, on all cores, and `take(result)` on this thread, in the order of i. What
/// `make` throws is thrown here, at its turn, and so is what `take` throws; nothing is taken after that.
/// @param take returns false when it wants no more.
template <typename Result, typename Make, typename Take>
void inOrder(std::size_t count, Make make, Take take)
{
    struct Slot
    {
        std::optional<Result> result;
        std::exception_ptr error;
        bool isDone = false;
    };
    std::vector<Slot> results(count);
    std::mutex mutex;
    std::condition_variable isDone;
    std::atomic<std::size_t> next{0};
    const auto work = [&] {
        for (std::size_t i = next++; i < count; i = next++) {
            std::optional<Result> result;
            std::exception_ptr error;
            try {
                result = make(i);
            } catch (...) {
                error = std::current_exception();
            }
            const std::lock_guard lock(mutex);
            results[i] = {std::move(result), error, true};
            isDone.notify_one();
        }
    };

    std::vector<std::thread> threads;
    const std::size_t cores = std::max(1U, std::thread::hardware_concurrency());
    for (std::size_t i = 0; i < std::min(cores, count); ++i)
        threads.emplace_back(work);
    std::exception_ptr error;
    for (std::size_t i = 0; i < count && !error; ++i) {
        Slot slot;
        {
            std::unique_lock lock(mutex);
            isDone.wait(lock, [&] { return results[i].isDone; });
            slot = std::move(results[i]);
            results[i].result.reset();
        }
        error = slot.error;
        try {
            if (!error && !take(std::move(*slot.result)))
                break;
        } catch (...) {
            error = std::current_exception();
        }
    }
    next = count; // who is still at work finds nothing more to do
    for (std::thread& thread : threads)
        thread.join();
    if (error)
        std::rethrow_exception(error);
}

} // namespace zu::cli
