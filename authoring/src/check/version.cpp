#include "check/version.hpp"

#include "ascii.hpp"

#include <algorithm>

namespace zupackage::check {

namespace {

using ascii::isDigit;

bool isNumber(std::string_view text) { return !text.empty() && std::all_of(text.begin(), text.end(), isDigit); }

bool isWord(std::string_view text)
{
    return !text.empty() &&
           std::all_of(text.begin(), text.end(), [](char c) { return ascii::isLetterOrDigit(c) || c == '-'; });
}

std::vector<std::string_view> partsOf(std::string_view text)
{
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0; begin <= text.size();) {
        const std::size_t end = std::min(text.find('.', begin), text.size());
        parts.push_back(text.substr(begin, end - begin));
        begin = end + 1;
    }
    return parts;
}

template <typename Holds>
bool allParts(std::string_view text, Holds holds)
{
    const std::vector<std::string_view> parts = partsOf(text);
    return std::all_of(parts.begin(), parts.end(), holds);
}

std::string_view withoutLeadingZeros(std::string_view number)
{
    return number.substr(std::min(number.find_first_not_of('0'), number.size() - 1));
}

/// Below, at or above 0 as `left` is less than, equal to or greater than `right`; of numbers without leading zeros.
int comparedNumbers(std::string_view left, std::string_view right)
{
    if (left.size() != right.size())
        return left.size() < right.size() ? -1 : 1;
    return left.compare(right);
}

int comparedIdentifiers(std::string_view left, std::string_view right)
{
    if (isNumber(left) != isNumber(right))
        return isNumber(left) ? -1 : 1;
    return isNumber(left) ? comparedNumbers(withoutLeadingZeros(left), withoutLeadingZeros(right))
                          : left.compare(right);
}

bool isPreReleaseBefore(std::string_view left, std::string_view right)
{
    if (left.empty() || right.empty())
        return !left.empty() && right.empty();
    const auto a = partsOf(left);
    const auto b = partsOf(right);
    for (std::size_t i = 0; i < std::min(a.size(), b.size()); ++i) {
        if (const int order = comparedIdentifiers(a[i], b[i]); order != 0)
            return order < 0;
    }
    return a.size() < b.size();
}

} // namespace

std::optional<Version> parseVersion(std::string_view text)
{
    const std::size_t plus = std::min(text.find('+'), text.size());
    const std::string_view build = text.substr(plus);
    text = text.substr(0, plus);
    const std::size_t hyphen = std::min(text.find('-'), text.size());
    const std::string_view preRelease = text.substr(hyphen);
    if ((!build.empty() && !allParts(build.substr(1), isWord)) ||
        (!preRelease.empty() && !allParts(preRelease.substr(1), isWord)) || !allParts(text.substr(0, hyphen), isNumber))
        return std::nullopt;

    Version version;
    for (const std::string_view number : partsOf(text.substr(0, hyphen)))
        version.numbers.push_back(withoutLeadingZeros(number));
    if (!preRelease.empty())
        version.preRelease = preRelease.substr(1);
    return version;
}

bool isBefore(const Version& left, const Version& right)
{
    const auto number = [](const Version& version, std::size_t i) {
        return i < version.numbers.size() ? version.numbers[i] : std::string_view("0");
    };
    for (std::size_t i = 0; i < std::max(left.numbers.size(), right.numbers.size()); ++i) {
        if (const int order = comparedNumbers(number(left, i), number(right, i)); order != 0)
            return order < 0;
    }
    return isPreReleaseBefore(left.preRelease, right.preRelease);
}

} // namespace zupackage::check
