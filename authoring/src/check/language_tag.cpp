#include "check/language_tag.hpp"

#include "check/language_codes.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace zupackage::check {

namespace {

// Not those of <cctype>, which ask the process for its locale.
bool isLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isLetterOrDigit(char c) { return isLetter(c) || isDigit(c); }
char lowered(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }
char raised(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool lettersOnly(std::string_view part) { return std::all_of(part.begin(), part.end(), isLetter); }
bool digitsOnly(std::string_view part) { return std::all_of(part.begin(), part.end(), isDigit); }

bool isScript(std::string_view part) { return part.size() == 4 && lettersOnly(part); }

bool isRegion(std::string_view part)
{
    return (part.size() == 2 && lettersOnly(part)) || (part.size() == 3 && digitsOnly(part));
}

bool isVariant(std::string_view part)
{
    return (part.size() >= 5 && part.size() <= 8) || (part.size() == 4 && isDigit(part.front()));
}

/// The parts of a code; nothing where one is empty, too long or holds anything but letters and digits, or where
/// separators mix.
std::optional<std::vector<std::string_view>> partsOf(std::string_view code, char separator)
{
    constexpr std::size_t k_longestPart = 8;
    std::vector<std::string_view> parts;
    for (std::size_t begin = 0; begin <= code.size();) {
        const std::size_t end = std::min(code.find(separator, begin), code.size());
        const std::string_view part = code.substr(begin, end - begin);
        if (part.empty() || part.size() > k_longestPart || !std::all_of(part.begin(), part.end(), isLetterOrDigit))
            return std::nullopt;
        parts.push_back(part);
        begin = end + 1;
    }
    return parts;
}

/// Extensions ("u-co-phonebk") and private use ("x-robot"): a single character and what belongs to it.
bool areExtensions(const std::vector<std::string_view>& parts, std::size_t next)
{
    while (next < parts.size()) {
        if (parts[next].size() != 1)
            return false;
        const bool isPrivate = lowered(parts[next].front()) == 'x';
        const std::size_t first = ++next;
        while (next < parts.size() && (isPrivate || parts[next].size() > 1))
            ++next;
        if (next == first)
            return false;
    }
    return true;
}

bool isOneOf(std::string_view codes, std::size_t length, std::string_view code)
{
    std::array<char, 4> key{};
    std::transform(code.begin(), code.end(), key.begin(), lowered);
    const std::string_view wanted(key.data(), length);
    std::size_t first = 0;
    std::size_t last = codes.size() / length;
    while (first < last) {
        const std::size_t middle = (first + last) / 2;
        const std::string_view candidate = codes.substr(middle * length, length);
        if (candidate == wanted)
            return true;
        if (candidate < wanted)
            first = middle + 1;
        else
            last = middle;
    }
    return false;
}

bool isKnownLanguage(std::string_view language)
{
    return language.size() == 2 ? isOneOf(codes::k_languagesOfTwoLetters, 2, language)
                                : isOneOf(codes::k_languagesOfThreeLetters, 3, language);
}

} // namespace

std::optional<LanguageTag> parseLanguageTag(std::string_view code)
{
    const std::size_t firstSeparator = code.find_first_of("-_");
    const char separator = firstSeparator == std::string_view::npos ? '\0' : code[firstSeparator];
    const auto parts = partsOf(code, separator == '\0' ? '-' : separator);
    if (!parts)
        return std::nullopt;

    LanguageTag tag{{}, {}, {}, separator};
    std::size_t next = 0;
    if (parts->front().size() > 1) {
        const std::string_view language = parts->front();
        if (language.size() > 3 || !lettersOnly(language))
            return std::nullopt;
        tag.language = language;
        ++next;
        if (next < parts->size() && isScript((*parts)[next]))
            tag.script = (*parts)[next++];
        if (next < parts->size() && isRegion((*parts)[next]))
            tag.region = (*parts)[next++];
        while (next < parts->size() && isVariant((*parts)[next]))
            ++next;
    } else if (lowered(code.front()) != 'x') {
        return std::nullopt;
    }
    return areExtensions(*parts, next) ? std::optional(tag) : std::nullopt;
}

std::string_view unknownPart(const LanguageTag& tag)
{
    if (!tag.language.empty() && !isKnownLanguage(tag.language))
        return tag.language;
    if (!tag.script.empty() && !isOneOf(codes::k_scripts, 4, tag.script))
        return tag.script;
    // Areas larger than a country have numbers, which the data does not hold.
    if (tag.region.size() == 2 && !isOneOf(codes::k_countries, 2, tag.region))
        return tag.region;
    return {};
}

std::string canonicalSpelling(std::string_view code)
{
    std::string result(code);
    const auto tag = parseLanguageTag(code);
    if (!tag)
        return result;
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    const auto place = [&](std::string_view part) { return result.begin() + (part.data() - code.data()); };
    if (!tag->script.empty())
        *place(tag->script) = raised(*place(tag->script));
    for (std::size_t i = 0; i < tag->region.size(); ++i)
        place(tag->region)[static_cast<std::ptrdiff_t>(i)] = raised(tag->region[i]);
    return result;
}

} // namespace zupackage::check
