#pragma once

#include <zupackage/authoring/language_matrix.hpp>

#include <cstddef>
#include <string>
#include <vector>

namespace zu::cli {

/// What a release demands of the languages of each package.
struct LanguageGate
{
    std::vector<std::string> required; ///< languages in which everything should be there
    int failUnder = 0;                 ///< the least coverage of these, or of the declared ones when none is required

    /// Whether the language has less than is demanded of it.
    bool isMissedBy(const authoring::MatrixLanguage& language) const;
    /// Whether something is demanded, and of no language of the package.
    bool hasNothingToJudge(const authoring::LanguageMatrix& matrix) const;
};

/// The languages of one manifest.
struct ManifestLanguages
{
    std::string path;    ///< as messages show it
    std::string failure; ///< why it could not be read; empty when it was
    std::string uuid;
    std::string version;
    authoring::LanguageMatrix matrix;
};

/// Reads a manifest file, or what standard input holds for "-".
ManifestLanguages languagesOf(const std::string& path, const std::vector<std::string>& required);

/// What a list of texts is called: "trigger sentences".
const char* nameOf(authoring::TextKind kind);
/// The same for programs: "trigger_sentences".
std::string keyOf(authoring::TextKind kind);
/// "package", "behavior" or "dialog".
const char* nameOf(authoring::PartKind kind);

} // namespace zu::cli
