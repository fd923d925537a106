#pragma once

#include "command.hpp"

#include <zupackage/authoring/path_edit.hpp>

#include <optional>
#include <string>
#include <vector>

namespace zu::cli {

/// What every command takes that edits one manifest by paths.
struct EditArguments
{
    std::string source;
    bool isForced = false;
    bool isDryRun = false;
};

void acceptEditArguments(EditArguments& parsed, Arguments& arguments);

/// The document that a source holds.
/// @param failure receives why there is none, with the place.
/// @return nothing when it cannot be read or is not well-formed.
std::optional<authoring::SourceDocument> documentOf(const std::string& source, std::string& failure);

/// The same; standard error tells why there is none.
std::optional<authoring::SourceDocument> documentOf(const std::string& source);

/// Makes all of the edits or none, in the file, or from standard input to standard output.
ExitCode editManifest(const EditArguments& arguments, const std::vector<authoring::PathEdit>& edits);

/// Puts another document in the place of one, in its file or on standard output.
/// @param path of the manifest; "-" for standard output.
ExitCode writeDocument(const std::string& path, const std::string& bytes);

/// The difference between two documents, in their own bytes, as `patch -p0` takes it; that of documents in UTF-16 or
/// UTF-32, which have no lines for `patch`, in UTF-8.
std::string differenceOf(const std::string& path, const authoring::SourceDocument& before,
                         const authoring::SourceDocument& after);

} // namespace zu::cli
