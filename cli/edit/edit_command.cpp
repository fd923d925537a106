#include "edit/edit_command.hpp"

#include "edit/unified_diff.hpp"
#include "manifest_bytes.hpp"
#include "output.hpp"

#include <zupackage/authoring/text_edit.hpp>
#include <zupackage/package_info.hpp>

namespace zu::cli {

using authoring::PathEditError;
using authoring::SourceDocument;
using authoring::VocabularyGuard;

namespace {

/// The bytes of a document; in UTF-8 where lines of them would be none for those who read them, and for `patch`.
std::string_view linesOf(const SourceDocument& document)
{
    const bool isWide = encodedSize(document, "\n") > 1;
    return isWide ? document.source({0, document.text().size()}) : std::string_view(document.text());
}

} // namespace

void acceptEditArguments(EditArguments& parsed, Arguments& arguments)
{
    arguments.require(parsed.source, "FILE", "FILE|FOLDER|-",
                      "A manifest file, a package folder (its manifest.xml), or - for standard input to standard "
                      "output. The file is replaced as a whole and keeps its mode, its owner and the symbolic links "
                      "to it; other hard links keep the old content");
    arguments.flag(parsed.isForced, "--force", "Make also what manifests do not have, and values of the wrong kind");
    arguments.flag(parsed.isDryRun, "--dry-run", "Show the difference, and leave the file as it is");
}

std::optional<SourceDocument> documentOf(const std::string& source, std::string& failure)
{
    const std::string path = manifestPath(source);
    std::string bytes;
    if (!readManifestBytes(path, bytes, failure)) {
        failure = "cannot read " + shownName(path) + ": " + failure;
        return std::nullopt;
    }
    SourceDocument document = SourceDocument::parse(std::move(bytes));
    if (document.isWellFormed())
        return document;
    const authoring::SyntaxError& error = document.errors().front();
    failure = shownName(path) + ":" + std::to_string(error.place.line) + ":" + std::to_string(error.place.column) +
              ": " + error.message;
    return std::nullopt;
}

std::optional<SourceDocument> documentOf(const std::string& source)
{
    std::string failure;
    std::optional<SourceDocument> document = documentOf(source, failure);
    if (!document)
        complain(failure);
    return document;
}

ExitCode editManifest(const EditArguments& arguments, const std::vector<authoring::PathEdit>& edits)
{
    const std::optional<SourceDocument> document = documentOf(arguments.source);
    if (!document)
        return k_inputFailed;
    const std::string path = manifestPath(arguments.source);
    try {
        const SourceDocument result =
            edited(*document, edits, arguments.isForced ? VocabularyGuard::Waived : VocabularyGuard::Enforced);
        if (arguments.isDryRun)
            return writeOutput(differenceOf(path, *document, result)) ? k_success : k_outputFailed;
        if (path != "-" && result.text() == document->text())
            return k_success;
        return writeDocument(path, result.text());
    } catch (const PathEditError& error) {
        const bool isAbsent = error.reason() == PathEditError::Reason::NotThere;
        complain(shownName(path) + ": " + error.what());
        return isAbsent ? k_absent : k_usage;
    }
}

ExitCode writeDocument(const std::string& path, const std::string& bytes)
{
    if (path == "-")
        return writeOutput(bytes) ? k_success : k_outputFailed;
    try {
        replaceManifest(path, bytes);
        return k_success;
    } catch (const std::runtime_error& error) {
        complain(error.what());
        return k_outputFailed;
    }
}

std::string differenceOf(const std::string& path, const SourceDocument& before, const SourceDocument& after)
{
    return unifiedDiff(shownName(path), linesOf(before), linesOf(after));
}

} // namespace zu::cli
