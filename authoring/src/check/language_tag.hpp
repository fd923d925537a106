#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace zupackage::check {

/// A language code in its parts: "zh-Hant-TW" is language "zh", script "Hant", region "TW". A language that extends
/// another one ("yue" of "zh-yue"), variants and extensions are none of them.
struct LanguageTag
{
    std::string_view language; ///< empty when the tag is private use only ("x-robot"), or older than the syntax
    std::string_view script;   ///< empty when the tag has none; so for the region
    std::string_view region;
    char separator; ///< '-' or '_'; 0 when the tag has one part only
};

/// Takes a code apart by the syntax of BCP 47, with either hyphens or underscores between its parts.
/// Codes that were registered before that syntax ("i-klingon", "en-GB-oed") are well-formed and have no parts.
/// Languages of four letters and more, which nobody has, are refused, and so are three letters behind a language that
/// no others extend: "en-USA" is meant for "en-US".
/// @return nothing when it is not well-formed, the empty code included. The parts refer to `code`.
std::optional<LanguageTag> parseLanguageTag(std::string_view code);

/// @return the first part of the tag that no standard knows; empty when all are known. Case makes no difference.
std::string_view unknownPart(const LanguageTag& tag);

/// @return the code that took the place of the tag's language: "he" of "iw"; empty when it is in use. Case makes no
/// difference.
std::string_view successor(const LanguageTag& tag);

/// The tag in the spelling that the standards recommend ("FR-fr" becomes "fr-FR"), its separators kept.
std::string canonicalSpelling(std::string_view code);

} // namespace zupackage::check
