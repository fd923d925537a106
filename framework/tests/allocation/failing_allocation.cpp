#include "failing_allocation.hpp"

#include <cstdlib>

namespace {

constexpr std::size_t k_none = static_cast<std::size_t>(-1);
constexpr std::size_t k_failed = k_none - 1;

thread_local std::size_t t_allowed = k_none;
thread_local zu::AllocationPredicate t_mayFail = nullptr;

/// @return null when there is no memory, or is to be none
void* allocate(std::size_t size, const void* caller)
{
    if (t_allowed == 0 && (!t_mayFail || t_mayFail(caller))) {
        t_allowed = k_failed;
        return nullptr;
    }
    if (t_allowed > 0 && t_allowed < k_failed)
        --t_allowed;
    return std::malloc(size == 0 ? 1 : size);
}

void* allocateOrThrow(std::size_t size, const void* caller)
{
    if (void* memory = allocate(size, caller))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size) { return allocateOrThrow(size, __builtin_return_address(0)); }

void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

// Those of the standard library would call the ones above: it would be the caller.
void* operator new[](std::size_t size) { return allocateOrThrow(size, __builtin_return_address(0)); }

void* operator new[](std::size_t size, const std::nothrow_t& /*unused*/) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t& /*unused*/) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t& /*unused*/) noexcept { std::free(memory); }

namespace zu {

FailingAllocation::FailingAllocation(std::size_t allowed, AllocationPredicate mayFail)
{
    t_allowed = allowed;
    t_mayFail = mayFail;
}

FailingAllocation::~FailingAllocation() { t_allowed = k_none; }

bool FailingAllocation::hasFailed() const { return t_allowed == k_failed; }

} // namespace zu
