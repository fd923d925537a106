#pragma once

#include "records/field.hpp"

#include <zupackage/language_info.hpp>

#include <map>

namespace zupackage::xml {
class Node;
}

namespace zu {

struct LanguageInfoPrivate
{
    /// Reads a "languageContent" element; the record is a fresh one. True, always.
    bool loadFromManifest(zupackage::xml::Node element);

    std::string path;
    std::string engineName;
    std::string engineVersion;
    std::string locale;
    std::map<std::string, std::string> langToName;
};

} // namespace zu

namespace zupackage {

template <>
inline constexpr auto k_fields<zu::LanguageInfoPrivate> = std::tuple(
    field("path", &zu::LanguageInfoPrivate::path), field("engineName", &zu::LanguageInfoPrivate::engineName),
    field("engineVersion", &zu::LanguageInfoPrivate::engineVersion), field("locale", &zu::LanguageInfoPrivate::locale),
    field("langToName", &zu::LanguageInfoPrivate::langToName, "names"));

} // namespace zupackage
