#include "site/site_package.hpp"

#include "manifest_source.hpp"
#include "site/short_text.hpp"

#include <QtCore/QString>

#include <filesystem>

namespace zu::cli {

namespace {

using Texts = std::map<std::string, std::string>;

/// As readers of manifests have it: beyond the white space of XML, all that Unicode calls such.
bool isBlank(const std::string& text) { return QString::fromStdString(text).trimmed().isEmpty(); }

std::string folderNameOf(const std::string& path)
{
    namespace fs = std::filesystem;
    std::error_code error;
    const std::string name = fs::absolute(path, error).lexically_normal().parent_path().filename().string();
    return path == "-" || name.empty() ? "package" : QString::fromUtf8(name.c_str()).toStdString();
}

void setTitle(SitePackage& package, const std::string& path)
{
    if (const auto* name = preferredText(package.package.names(), package.package)) {
        package.title = shortText(name->second);
        package.titleLanguage = name->first;
    } else {
        package.title = shortText(isBlank(package.package.uuid()) ? folderNameOf(path) : package.package.uuid());
    }
}

} // namespace

const Texts::value_type* preferredText(const Texts& texts, const PackageInfo& package)
{
    const auto usable = [&texts](const std::string& language) -> const Texts::value_type* {
        const auto found = texts.find(language);
        return found == texts.end() || isBlank(found->second) ? nullptr : &*found;
    };
    if (const auto* english = usable("en"))
        return english;
    for (const auto& text : texts) {
        if (text.first.compare(0, 3, "en_") == 0 && !isBlank(text.second))
            return &text;
    }
    for (const std::string& language : package.descriptionLanguages()) {
        if (const auto* text = usable(language))
            return text;
    }
    for (const auto& text : texts) {
        if (!isBlank(text.second))
            return &text;
    }
    return nullptr;
}

SitePackage readSitePackage(const std::string& path)
{
    SitePackage package;
    package.checked = checkManifest(path, {});
    if (!package.checked.failure.empty())
        return package;
    ManifestSyntaxError error;
    if (!readManifest(package.checked.document.text(), package.package, &error))
        package.refusal = wordsOf(error);
    package.matrix = authoring::languageMatrix(package.package);
    setTitle(package, path);
    return package;
}

std::vector<std::string> offeredLanguages(const SitePackage& package)
{
    std::vector<std::string> offered;
    for (const authoring::MatrixLanguage& language : package.matrix.languages) {
        if (!language.code.empty() && (language.isSupported || package.package.supportedLanguages().empty()))
            offered.push_back(language.code);
    }
    return offered;
}

} // namespace zu::cli
