#include <zu/native/enumeration.hpp>
#include <zu/type/int.hpp>

#include <algorithm>

namespace zu {

IntTypeInterface::~IntTypeInterface() = default;

bool IntTypeInterface::accepts(std::int64_t) const noexcept { return true; }

const std::vector<Enumerator>& IntTypeInterface::enumerators() const noexcept
{
    static const auto& none = *new std::vector<Enumerator>;
    return none;
}

std::string_view IntTypeInterface::nameOf(std::int64_t number) const noexcept
{
    for (const Enumerator& enumerator : enumerators()) {
        if (enumerator.number == number)
            return enumerator.name;
    }
    return {};
}

std::optional<std::int64_t> IntTypeInterface::numberOf(std::string_view name) const noexcept
{
    for (const Enumerator& enumerator : enumerators()) {
        if (enumerator.name == name)
            return enumerator.number;
    }
    return std::nullopt;
}

namespace detail {

bool isAmong(const std::vector<Enumerator>& enumerators, bool isSigned, std::int64_t number) noexcept
{
    const auto bitsOf = [isSigned](std::int64_t value) {
        return static_cast<std::uint64_t>(isSigned && value < 0 ? ~value : value); // -1 is made of a sign alone
    };
    std::uint64_t bits = 0;
    bool isNegativeAllowed = false;
    for (const Enumerator& enumerator : enumerators) {
        bits |= bitsOf(enumerator.number);
        isNegativeAllowed |= isSigned && enumerator.number < 0;
    }
    for (unsigned step = 1; step != 64; step *= 2)
        bits |= bits >> step; // every bit below the highest one
    const bool isNegative = isSigned && number < 0;
    return !enumerators.empty() && (isNegativeAllowed || !isNegative) && (bitsOf(number) & ~bits) == 0;
}

} // namespace detail
} // namespace zu
