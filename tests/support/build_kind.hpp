#pragma once

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
#define ZU_SANITIZED 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer) || __has_feature(thread_sanitizer)
#define ZU_SANITIZED 1
#endif
#endif

namespace zu::test {

/// Under a sanitizer everything takes ten times as long. What a test shows by size alone is for the other builds.
#ifdef ZU_SANITIZED
constexpr bool k_sanitized = true;
#else
constexpr bool k_sanitized = false;
#endif

#ifdef NDEBUG
constexpr bool k_optimised = !k_sanitized;
#else
constexpr bool k_optimised = false;
#endif

} // namespace zu::test
