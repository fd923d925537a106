#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <string_view>

/// What the fuzzer calls with each input. A failed oracle aborts.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace fuzz {

/// An input as text.
inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// An oracle: what must hold for every input.
inline void require(bool holds, std::string_view what)
{
    if (holds)
        return;
    std::cerr << "fuzz: " << what << std::endl; // NOLINT(performance-avoid-endl): before it aborts
    std::abort();
}

/// Makes choices from an input, until it is used up; from then on the first choice and empty texts.
class Choices
{
public:
    explicit Choices(std::string_view input) : m_rest(input) {}

    bool isUsedUp() const { return m_rest.empty(); }

    std::uint8_t byte()
    {
        if (m_rest.empty())
            return 0;
        const auto byte = static_cast<std::uint8_t>(m_rest.front());
        m_rest.remove_prefix(1);
        return byte;
    }

    bool flag() { return byte() % 2 == 1; }

    int number(int most) { return byte() % (most + 1); }

    std::string text()
    {
        const std::size_t size = byte() % 24u;
        const std::string_view text = m_rest.substr(0, size);
        m_rest.remove_prefix(text.size());
        return std::string(text);
    }

private:
    std::string_view m_rest;
};

} // namespace fuzz
