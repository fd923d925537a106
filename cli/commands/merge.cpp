#include "commands/merge.hpp"

#include "display_width.hpp"
#include "edit/edit_command.hpp"
#include "manifest_bytes.hpp"
#include "merge/conflict_marks.hpp"
#include "output.hpp"

#include <zupackage/authoring/manifest_editor.hpp>
#include <zupackage/authoring/package_merge.hpp>

#include <algorithm>
#include <memory>
#include <optional>

namespace zu::cli {

namespace {

using authoring::ManifestEditError;
using authoring::ManifestMerge;
using authoring::SourceDocument;

struct MergeArguments
{
    std::string base;
    std::string ours;
    std::string theirs;
    std::string output = "-";
    std::string markerSize = "7";
    std::vector<std::string> labels;
};

/// The bytes of a manifest that can be read.
/// @return nothing when it cannot, which standard error tells then.
std::optional<std::string> manifestIn(const std::string& source, bool mayBeEmpty)
{
    const std::string path = manifestPath(source);
    std::string bytes;
    std::string failure;
    PackageInfo package;
    ManifestSyntaxError error;
    if (readManifestBytes(path, bytes, failure)) {
        if ((mayBeEmpty && bytes.empty()) || readManifest(bytes, package, &error))
            return bytes;
        failure =
            "line " + std::to_string(error.line) + ", column " + std::to_string(error.column) + ": " + error.message;
    }
    complain("cannot read " + shownName(path) + ": " + failure);
    return std::nullopt;
}

/// What the options say about marks; nothing when that makes no sense, which standard error tells then.
std::optional<ConflictMarks> marksOf(const MergeArguments& arguments)
{
    constexpr std::size_t k_mostDigits = 3;
    const std::string& size = arguments.markerSize;
    const bool isNumber = !size.empty() && size.size() <= k_mostDigits &&
                          size.find_first_not_of("0123456789") == std::string::npos && std::stoi(size) > 0;
    if (!isNumber || arguments.labels.size() > 2) {
        complain(isNumber ? "there are two labels, for OURS and THEIRS"
                          : "\"" + size + "\" is no size of a mark, from 1 to 999");
        return std::nullopt;
    }
    ConflictMarks marks;
    marks.size = std::stoul(size);
    marks.oursLabel = arguments.labels.empty() ? "ours" : arguments.labels[0];
    marks.theirsLabel = arguments.labels.size() < 2 ? "theirs" : arguments.labels[1];
    return marks;
}

ExitCode writeMerge(const ManifestMerge& merged, const MergeArguments& arguments, const ConflictMarks& marks)
{
    if (merged.leavesTextBehind)
        complain("warning: " + shownName(arguments.theirs) +
                 " has other comments, or other things that are no part of a package; they are not merged");
    if (merged.conflicts.empty())
        return writeDocument(arguments.output, merged.ours);
    for (const authoring::MergeConflict& conflict : merged.conflicts)
        complain("both sides changed " + displayed(conflict.path));
    return worse(k_findings,
                 writeDocument(arguments.output, withConflictMarks(SourceDocument::parse(merged.ours),
                                                                   SourceDocument::parse(merged.theirs), marks)));
}

ExitCode merge(const MergeArguments& arguments)
{
    const std::optional<ConflictMarks> marks = marksOf(arguments);
    if (!marks)
        return k_usage;
    const std::string* const sources[] = {&arguments.base, &arguments.ours, &arguments.theirs};
    if (std::count_if(std::begin(sources), std::end(sources), [](const auto* source) { return *source == "-"; }) > 1) {
        complain("only one of the manifests can be standard input");
        return k_usage;
    }
    const std::optional<std::string> base = manifestIn(arguments.base, true);
    const std::optional<std::string> ours = manifestIn(arguments.ours, false);
    const std::optional<std::string> theirs = manifestIn(arguments.theirs, false);
    if (!base || !ours || !theirs)
        return k_inputFailed;
    try {
        return writeMerge(authoring::mergeManifests(*base, *ours, *theirs), arguments, *marks);
    } catch (const ManifestEditError& error) {
        complain("cannot edit " + shownName(manifestPath(arguments.ours)) + ": line " +
                 std::to_string(error.place().line) + ", column " + std::to_string(error.place().column) + ": " +
                 error.what());
        return k_inputFailed;
    }
}

std::function<ExitCode()> prepare(Arguments& arguments)
{
    auto parsed = std::make_shared<MergeArguments>();
    arguments.require(parsed->base, "BASE", "FILE|FOLDER|-",
                      "The manifest that both sides started from; an empty file when there was none");
    arguments.require(parsed->ours, "OURS", "FILE|FOLDER|-", "The manifest whose text receives the changes of THEIRS");
    arguments.require(parsed->theirs, "THEIRS", "FILE|FOLDER|-",
                      "The other one; of its text nothing counts but the package");
    arguments.option(parsed->output, "-o,--output", "FILE",
                     "Where the result goes, instead of standard output; may be OURS. It stays as it is when one of "
                     "the three cannot be read");
    arguments.option(parsed->markerSize, "--marker-size", "N", "How long the marks of conflicts are; by default 7");
    arguments.repeated(parsed->labels, "-L,--label", "TEXT",
                       "What stands behind the marks of OURS, and, given twice, of THEIRS");
    return [parsed] { return merge(*parsed); };
}

constexpr Example k_examples[] = {
    {"zupackage merge base.xml ours.xml theirs.xml -o merged.xml", "Put together what became of base.xml"},
    {"git config merge.zupackage.driver 'zupackage merge %O %A %B -o %A --marker-size %L'",
     "Have git merge the files that have the attribute merge=zupackage so"},
};

} // namespace

const Command k_merge = {"merge", "Put together what two sides made of one package", prepare, k_examples};

} // namespace zu::cli
