#pragma once

#include <zupackage/authoring/export.hpp>
#include <zupackage/authoring/place.hpp>
#include <zupackage/package_info.hpp>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zu {

namespace authoring {

/// A text is no package in JSON.
class ZUPACKAGE_AUTHORING_EXPORT PackageJsonError : public std::runtime_error
{
public:
    /// Puts what() together from the three.
    PackageJsonError(Place place, std::string pointer, std::string reason);
    /// Copies share the texts, so that they cannot fail.
    /// @{
    PackageJsonError(const PackageJsonError&) noexcept = default;
    PackageJsonError& operator=(const PackageJsonError&) noexcept = default;
    /// @}
    ~PackageJsonError() override;

    /// Where in the text what is wrong begins.
    Place place() const noexcept { return m_place; }

    /// The same as a JSON pointer (RFC 6901), "/contents/behaviorContent/0/nature"; empty for the whole. Of what is no
    /// JSON the way to where the text stops to be it.
    const std::string& pointer() const noexcept { return m_texts->pointer; }

    /// For people, without the place. what() is `line 3, column 5, at "POINTER": REASON`.
    const std::string& reason() const noexcept { return m_texts->reason; }

private:
    struct Texts
    {
        std::string pointer;
        std::string reason;
    };

    Place m_place;
    std::shared_ptr<const Texts> m_texts;
};

} // namespace authoring

/// The package as JSON, in UTF-8, indented by two spaces a level, with a line feed at the end: what its manifest says,
/// under the names that the manifest has for it, in the order of the manifest. Maps are objects by language, purpose or
/// name, what is ordered is a list; what is empty is left out; "format_version" comes first. docs/guide/json.md tells
/// every key.
///
/// What PackageInfo::saveToManifestContent() leaves out or replaces is left out or replaced here, too: installer, path
/// and empty texts are not there, what XML cannot carry or is no UTF-8 is U+FFFD, and byte order marks before a text
/// are gone, all of them, of which each writing of a manifest takes away one.
///
/// Throws std::runtime_error in one case: keys or languages may have become equal by U+FFFD or without byte order
/// marks, so that the manifest must tell what becomes of them, and is larger than those that are read. May be called by
/// several threads at once, on packages of their own.
ZUPACKAGE_AUTHORING_EXPORT std::string toJson(const PackageInfo& package);

/// The package that toJson() wrote. What is absent stays empty, members may stand in any order, null is no value.
/// Characters that XML cannot carry become U+FFFD, byte order marks before a text vanish.
///
/// Throws authoring::PackageJsonError when the text is no JSON or no UTF-8, when it has a key that is unknown or stands
/// there twice, an entry twice in a list that has each but once (languages, permissions), a value of another type or a
/// "format_version" other than 1, and when it is larger than 64 MiB or the manifest of the package would be about as
/// large. Keys and entries are compared as a manifest carries them. Takes time and memory in proportion to the text,
/// and little stack however deep it is nested. May be called by several threads at once.
ZUPACKAGE_AUTHORING_EXPORT PackageInfo packageFromJson(std::string_view json);

} // namespace zu
