#pragma once

#include "records/owner_pointer.hpp"

#include <zupackage/language_info.hpp>

#include <map>

class QDomDocument;
class QDomNode;

namespace zu {

struct LanguageInfoPrivate
{
    LanguageInfoPrivate() = default;
    explicit LanguageInfoPrivate(LanguageInfo* language) : owner(language) {}

    /// Reads a "languageContent" element; the record is a fresh one. True, always.
    bool loadFromManifest(const QDomNode& element);
    /// Appends a "languageContent" element to `parent`.
    void saveToManifest(QDomDocument& document, QDomNode& parent) const;

    std::string path;
    std::string engineName;
    std::string engineVersion;
    std::string locale;
    std::map<std::string, std::string> langToName;

    OwnerPointer<LanguageInfo> owner;
};

} // namespace zu
