#include "check/language_tag.hpp"

#include "ascii.hpp"
#include "check/language_codes.hpp"

#include <algorithm>
#include <array>
#include <vector>

namespace zupackage::check {

namespace {

using ascii::isDigit;
using ascii::isLetter;
using ascii::isLetterOrDigit;
using ascii::lowered;
using ascii::raised;

bool lettersOnly(std::string_view part) { return std::all_of(part.begin(), part.end(), isLetter); }
bool digitsOnly(std::string_view part) { return std::all_of(part.begin(), part.end(), isDigit); }

bool isScript(std::string_view part) { return part.size() == 4 && lettersOnly(part); }

bool isRegion(std::string_view part)
{
    return (part.size() == 2 && lettersOnly(part)) || (part.size() == 3 && digitsOnly(part));
}

bool isExtendedLanguage(std::string_view part) { return part.size() == 3 && lettersOnly(part); }

/// Whether other languages extend this one. Behind any other one, three letters are no part that a code may have:
/// countries have two.
bool hasExtendedLanguages(std::string_view language)
{
    constexpr std::array<std::string_view, 9> k_extended = {"ar", "kok", "lv", "ms", "no", "sgn", "sw", "uz", "zh"};
    return std::any_of(k_extended.begin(), k_extended.end(), [language](std::string_view known) {
        return std::equal(language.begin(), language.end(), known.begin(), known.end(),
                          [](char c, char knownCharacter) { return lowered(c) == knownCharacter; });
    });
}

bool isVariant(std::string_view part)
{
    return (part.size() >= 5 && part.size() <= 8) || (part.size() == 4 && isDigit(part.front()));
}

/// Codes that were registered before the syntax that they do not follow, in the spelling that they were registered in.
/// All others of that time follow it.
constexpr std::array<std::string_view, 17> k_registered = {
    "en-GB-oed", "i-ami", "i-bnn", "i-default", "i-enochian", "i-hak",     "i-klingon", "i-lux",    "i-mingo",
    "i-navajo",  "i-pwn", "i-tao", "i-tay",     "i-tsu",      "sgn-BE-FR", "sgn-BE-NL", "sgn-CH-DE"};

/// The one of them that the code is, but for case and separators; empty when it is none.
std::string_view registeredCode(std::string_view code, char separator)
{
    const auto isIt = [=](std::string_view registered) {
        return std::equal(code.begin(), code.end(), registered.begin(), registered.end(), [=](char c, char known) {
            return known == '-' ? c == separator : lowered(c) == lowered(known);
        });
    };
    const auto found = std::find_if(k_registered.begin(), k_registered.end(), isIt);
    return found == k_registered.end() ? std::string_view() : *found;
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

/// Takes the language of a tag, and what narrows it down.
/// @return how many parts that were; 0 when the tag does not begin with a language.
std::size_t takeLanguage(const std::vector<std::string_view>& parts, LanguageTag& tag)
{
    constexpr std::size_t k_mostExtended = 3;
    const std::string_view language = parts.front();
    if (language.size() < 2 || language.size() > 3 || !lettersOnly(language))
        return 0;
    tag.language = language;
    std::size_t next = 1;
    if (hasExtendedLanguages(language)) {
        while (next < parts.size() && next <= k_mostExtended && isExtendedLanguage(parts[next]))
            ++next;
    }
    if (next < parts.size() && isScript(parts[next]))
        tag.script = parts[next++];
    if (next < parts.size() && isRegion(parts[next]))
        tag.region = parts[next++];
    while (next < parts.size() && isVariant(parts[next]))
        ++next;
    return next;
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
    if (!registeredCode(code, separator).empty())
        return tag;
    const bool isPrivate = lowered(parts->front().front()) == 'x' && parts->front().size() == 1;
    const std::size_t taken = isPrivate ? 0 : takeLanguage(*parts, tag);
    return (isPrivate || taken > 0) && areExtensions(*parts, taken) ? std::optional(tag) : std::nullopt;
}

std::string_view unknownPart(const LanguageTag& tag)
{
    if (!tag.language.empty() && !isKnownLanguage(tag.language) && successor(tag).empty())
        return tag.language;
    if (!tag.script.empty() && !isOneOf(codes::k_scripts, 4, tag.script))
        return tag.script;
    // Areas larger than a country have numbers, which the data does not hold.
    if (tag.region.size() == 2 && !isOneOf(codes::k_countries, 2, tag.region))
        return tag.region;
    return {};
}

std::string_view successor(const LanguageTag& tag)
{
    struct Replaced
    {
        std::string_view former;
        std::string_view code;
    };
    // ISO 639 took these back; its data does not hold them any more.
    constexpr std::array<Replaced, 5> k_replaced = {
        {{"in", "id"}, {"iw", "he"}, {"ji", "yi"}, {"jw", "jv"}, {"mo", "ro"}}};
    for (const Replaced& replaced : k_replaced) {
        if (std::equal(tag.language.begin(), tag.language.end(), replaced.former.begin(), replaced.former.end(),
                       [](char c, char known) { return lowered(c) == known; }))
            return replaced.code;
    }
    return {};
}

std::string canonicalSpelling(std::string_view code)
{
    std::string result(code);
    const auto tag = parseLanguageTag(code);
    if (!tag)
        return result;
    const std::string_view registered = registeredCode(code, tag->separator);
    if (!registered.empty()) {
        result = registered;
        std::replace(result.begin(), result.end(), '-', tag->separator);
        return result;
    }
    std::transform(result.begin(), result.end(), result.begin(), lowered);
    const auto place = [&](std::string_view part) { return result.begin() + (part.data() - code.data()); };
    if (!tag->script.empty())
        *place(tag->script) = raised(*place(tag->script));
    for (std::size_t i = 0; i < tag->region.size(); ++i)
        place(tag->region)[static_cast<std::ptrdiff_t>(i)] = raised(tag->region[i]);
    return result;
}

} // namespace zupackage::check
