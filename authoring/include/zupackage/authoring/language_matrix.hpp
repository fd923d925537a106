#pragma once

#include <zupackage/authoring/export.hpp>

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace zu {
class PackageInfo;
}

namespace zu::authoring {

/// What a package says in several languages.
enum class TextKind
{
    Names,            ///< of the package or a behavior
    Descriptions,     ///< of the package or a behavior
    Tags,             ///< that a behavior is found by
    TriggerSentences, ///< that a behavior starts at
    LoadingResponses, ///< that are said while a behavior starts
    Topics            ///< the topic files of a dialog
};

/// How far the texts of a package go in one language.
struct Coverage
{
    std::size_t expected = 0; ///< of the rows of the matrix, those that should have a text in the language
    std::size_t present = 0;  ///< of these, those that have one

    /// Rounded down, so that only what is complete has 100; 100 when nothing is expected.
    int percent() const { return expected == 0 ? 100 : static_cast<int>(present * 100 / expected); }
};

/// A language of a package.
struct ZUPACKAGE_AUTHORING_EXPORT MatrixLanguage
{
    std::string code;           ///< as it stands in the package; empty for texts without a language
    bool isSupported = false;   ///< declared for what the package says and hears: tags, sentences, responses, topics
    bool isDescription = false; ///< declared for names and descriptions
    bool isRequired = false;    ///< asked for by the caller: for everything
    Coverage coverage;          ///< over all rows of the matrix

    /// Neither declared nor required: the package has texts in it all the same.
    bool isStray() const { return !isSupported && !isDescription && !isRequired; }
    /// Whether texts of that kind should be there in the language.
    bool expects(TextKind kind) const;
};

/// One kind of text of one part of a package.
struct ZUPACKAGE_AUTHORING_EXPORT MatrixRow
{
    TextKind kind = TextKind::Names; ///< of all texts of the row
    /// By the number of a language in LanguageMatrix::languages, how many texts there are; languages without any are
    /// left out. Of names, descriptions and topics there is one, of the others a list.
    std::map<std::size_t, std::size_t> counts;

    /// How many texts there are in the language of that number; 0 also for a number that no language has.
    std::size_t count(std::size_t language) const;
};

/// Whose texts are counted.
enum class PartKind
{
    Package,  ///< those of the package itself: names and descriptions
    Behavior, ///< those of one behavior: all kinds but topics
    Dialog    ///< those of one dialog: topics
};

/// The package itself, or a behavior or dialog of it.
struct MatrixPart
{
    PartKind kind = PartKind::Package; ///< tells what `name` is
    std::string name;                  ///< the path of a behavior, the topic name of a dialog; empty for the package
    std::vector<MatrixRow> rows;       ///< in the order of TextKind, those that are there
};

/// The languages of a package against what it has texts of.
///
/// A row is there for each kind of text that a part has in any language, and for the names of the package in any case:
/// a behavior without loading responses lacks them in no language. Texts of nothing but white space are none. Language
/// codes are compared as they stand, as robots do: a text in "en" is none in "en_US".
struct LanguageMatrix
{
    std::vector<MatrixLanguage> languages; ///< sorted by code, byte by byte
    std::vector<MatrixPart> parts;         ///< the package, its behaviors, its dialogs, in their order
    /// How many languages were left out, because no package has that many: there are 500 at most. Those that are
    /// required come first, then the declared ones, then the others.
    std::size_t omittedLanguages = 0;

    /// Whether a text should be there and is not.
    bool isMissing(const MatrixRow& row, std::size_t language) const
    {
        return languages[language].expects(row.kind) && row.count(language) == 0;
    }
};

/// @param required languages that the matrix has in any case, and expects every kind of text in.
ZUPACKAGE_AUTHORING_EXPORT LanguageMatrix languageMatrix(const PackageInfo& package,
                                                         const std::vector<std::string>& required = {});

} // namespace zu::authoring
