#include "languages/manifest_languages.hpp"

#include "manifest_bytes.hpp"
#include "manifest_source.hpp"

#include <zupackage/package_info.hpp>

#include <algorithm>

namespace zu::cli {

using authoring::PartKind;
using authoring::TextKind;

bool LanguageGate::isMissedBy(const authoring::MatrixLanguage& language) const
{
    const bool isMeant = required.empty() ? !language.isStray() : language.isRequired;
    return isMeant && language.coverage.percent() < failUnder;
}

bool LanguageGate::hasNothingToJudge(const authoring::LanguageMatrix& matrix) const
{
    return failUnder > 0 && std::all_of(matrix.languages.begin(), matrix.languages.end(),
                                        [](const auto& language) { return language.isStray(); });
}

ManifestLanguages languagesOf(const std::string& path, const std::vector<std::string>& required)
{
    ManifestLanguages languages;
    languages.path = shownName(path);
    std::string bytes;
    PackageInfo package;
    ManifestSyntaxError error;
    if (!readManifestBytes(path, bytes, languages.failure))
        return languages;
    if (!readManifest(bytes, package, &error)) {
        languages.failure = wordsOf(error);
        return languages;
    }
    languages.uuid = package.uuid();
    languages.version = package.version();
    languages.matrix = authoring::languageMatrix(package, required);
    return languages;
}

const char* nameOf(TextKind kind)
{
    switch (kind) {
    case TextKind::Names:
        return "names";
    case TextKind::Descriptions:
        return "descriptions";
    case TextKind::Tags:
        return "tags";
    case TextKind::TriggerSentences:
        return "trigger sentences";
    case TextKind::LoadingResponses:
        return "loading responses";
    case TextKind::Topics:
        return "topics";
    }
    return "";
}

std::string keyOf(TextKind kind)
{
    std::string key = nameOf(kind);
    std::replace(key.begin(), key.end(), ' ', '_');
    return key;
}

const char* nameOf(PartKind kind)
{
    switch (kind) {
    case PartKind::Package:
        return "package";
    case PartKind::Behavior:
        return "behavior";
    case PartKind::Dialog:
        return "dialog";
    }
    return "";
}

} // namespace zu::cli
