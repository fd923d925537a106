#include "failing_allocation.hpp"

#include <cstdlib>
#include <cstring>
#include <dlfcn.h>

namespace {

constexpr std::size_t k_none = static_cast<std::size_t>(-1);
constexpr std::size_t k_failed = k_none - 1;

thread_local std::size_t t_allowed = k_none;

/// Whether Qt allocates, which does not claim to get along without memory.
bool isOfQt(const void* caller)
{
    Dl_info info;
    return dladdr(caller, &info) != 0 && info.dli_fname && std::strstr(info.dli_fname, "libQt5");
}

/// @return null when there is no memory, or is to be none
void* allocate(std::size_t size, const void* caller)
{
    if (t_allowed == 0 && !isOfQt(caller)) {
        t_allowed = k_failed;
        return nullptr;
    }
    if (t_allowed > 0 && t_allowed < k_failed)
        --t_allowed;
    return std::malloc(size == 0 ? 1 : size);
}

} // namespace

void* operator new(std::size_t size)
{
    if (void* memory = allocate(size, __builtin_return_address(0)))
        return memory;
    throw std::bad_alloc();
}

void* operator new(std::size_t size, const std::nothrow_t& /*unused*/) noexcept
{
    return allocate(size, __builtin_return_address(0));
}

void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t& /*unused*/) noexcept { std::free(memory); }

namespace zu {

FailingAllocation::FailingAllocation(std::size_t allowed) { t_allowed = allowed; }

FailingAllocation::~FailingAllocation() { t_allowed = k_none; }

bool FailingAllocation::hasFailed() const { return t_allowed == k_failed; }

} // namespace zu
