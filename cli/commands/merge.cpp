#include "commands/merge.hpp"

#include "display_width.hpp"
#include "edit/edit_command.hpp"
#include "manifest_bytes.hpp"
#include "manifest_source.hpp"
#include "merge/conflict_marks.hpp"
#include "merge/line_merge.hpp"
#include "merge/text_merge.hpp"
#include "output.hpp"

#include <zupackage/authoring/manifest_editor.hpp>

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
    std::string name;
    std::string markerSize = "7";
    std::vector<std::string> labels;
};

/// One of the three manifests.
struct Side
{
    std::string name; ///< as messages show it
    std::string path;
    std::string bytes = {};
};

/// git gives copies of a manifest that have names of no meaning.
Side sideOf(const MergeArguments& arguments, const std::string& source, const char* role)
{
    const std::string path = manifestPath(source);
    return {displayed(arguments.name.empty() ? shownName(path) : arguments.name + " (" + role + ")"), path};
}

bool failedToRead(const Side& side, const std::string& reason)
{
    complain("cannot read " + side.name + ": " + reason);
    return false;
}

/// @return false when the file cannot be read, which standard error tells then.
bool readBytes(Side& side)
{
    std::string failure;
    return readManifestBytes(side.path, side.bytes, failure) || failedToRead(side, failure);
}

/// @return false when the bytes are no manifest, which standard error tells then.
bool isManifest(const Side& side)
{
    PackageInfo package;
    ManifestSyntaxError error;
    return readManifest(side.bytes, package, &error) || failedToRead(side, wordsOf(error));
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
    marks.oursLabel = arguments.labels.empty() ? "ours" : displayed(arguments.labels[0]);
    marks.theirsLabel = arguments.labels.size() < 2 ? "theirs" : displayed(arguments.labels[1]);
    return marks;
}

/// Without conflicts the sides are the same.
ExitCode writeSides(const std::string& ours, const std::string& theirs, const MergeArguments& arguments,
                    const ConflictMarks& marks)
{
    if (ours == theirs)
        return writeDocument(arguments.output, ours);
    return writeDocument(arguments.output,
                         withConflictMarks(SourceDocument::parse(ours), SourceDocument::parse(theirs), marks));
}

/// Says what of their text is not in the merge.
void complainOf(const std::vector<authoring::UnmergedText>& leftBehind, const Side& theirs)
{
    constexpr std::size_t k_width = 100;
    for (const authoring::UnmergedText& text : leftBehind)
        complain(theirs.name + (text.isRemoved ? " removes, and the merge keeps: " : " adds, and the merge lacks: ") +
                 shortened(text.text, k_width));
}

ExitCode writeMerge(const ManifestMerge& merged, const Side& theirs, const MergeArguments& arguments,
                    const ConflictMarks& marks)
{
    const std::string place = arguments.name.empty() ? std::string() : displayed(arguments.name) + ": ";
    for (const authoring::MergeConflict& conflict : merged.conflicts)
        complain(place + "both sides changed " + displayed(conflict.path));
    complainOf(merged.leftBehind, theirs);
    const bool isAll = merged.conflicts.empty() && merged.leftBehind.empty();
    return worse(isAll ? k_success : k_findings, writeSides(merged.ours, merged.theirs, arguments, marks));
}

/// Where nobody can tell what package both sides began with, the lines say what they changed.
ExitCode mergeLines(const Side& base, const Side& ours, const Side& theirs, const MergeArguments& arguments,
                    const ConflictMarks& marks)
{
    complain("so that lines are merged, not packages");
    return worse(k_inputFailed, writeSides(mergedLines(base.bytes, ours.bytes, theirs.bytes, AddedByBoth::OursStay),
                                           mergedLines(base.bytes, theirs.bytes, ours.bytes, AddedByBoth::OursStay),
                                           arguments, marks));
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
    Side base = sideOf(arguments, arguments.base, "base");
    Side ours = sideOf(arguments, arguments.ours, "ours");
    Side theirs = sideOf(arguments, arguments.theirs, "theirs");
    const bool areRead[] = {readBytes(base), readBytes(ours) && isManifest(ours),
                            readBytes(theirs) && isManifest(theirs)};
    if (!areRead[0] || !areRead[1] || !areRead[2])
        return k_inputFailed;
    if (!base.bytes.empty() && !isManifest(base))
        return mergeLines(base, ours, theirs, arguments, *marks);
    try {
        return writeMerge(mergedTexts(base.bytes, ours.bytes, theirs.bytes), theirs, arguments, *marks);
    } catch (const ManifestEditError& error) {
        complain("cannot edit " + ours.name + ": line " + std::to_string(error.place().line) + ", column " +
                 std::to_string(error.place().column) + ": " + error.what());
        return k_inputFailed;
    }
}

std::function<ExitCode()> prepareMerge(Arguments& arguments)
{
    auto parsed = std::make_shared<MergeArguments>();
    arguments.require(parsed->base, "BASE", "FILE|FOLDER|-",
                      "The manifest that both sides started from; an empty file when there was none");
    arguments.require(parsed->ours, "OURS", "FILE|FOLDER|-", "The manifest whose text receives the changes of THEIRS");
    arguments.require(parsed->theirs, "THEIRS", "FILE|FOLDER|-",
                      "The other one, whose comments and the like come along where lines tell how");
    arguments.option(parsed->output, "-o,--output", "FILE",
                     "Where the result goes, instead of standard output; may be OURS. It stays as it is when one of "
                     "the two sides cannot be read");
    arguments.option(parsed->name, "--name", "PATH", "What messages call the manifest, whatever the three files are");
    arguments.option(parsed->markerSize, "--marker-size", "N", "How long the marks of conflicts are; by default 7");
    arguments.repeated(parsed->labels, "-L,--label", "TEXT",
                       "What stands behind the marks of OURS, and, given twice, of THEIRS");
    return [parsed] { return merge(*parsed); };
}

constexpr Example k_mergeExamples[] = {
    {"zupackage merge base.xml ours.xml theirs.xml -o merged.xml", "Put together what became of base.xml"},
    {"git config merge.zupackage.driver 'zupackage merge %O %A %B -o %A --marker-size %L --name=%P'",
     "Have git merge the files that have the attribute merge=zupackage so"},
    {"git config merge.zupackage.recursive binary",
     "Have git give the driver manifests without marks when there are several bases"},
};

} // namespace

const Command k_merge = {"merge", "Put together what two sides made of one package", prepareMerge, k_mergeExamples};

} // namespace zu::cli
