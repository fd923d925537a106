#include "commands/diff.hpp"

#include "diff/difference_report.hpp"
#include "display_width.hpp"
#include "manifest_bytes.hpp"
#include "manifest_source.hpp"
#include "output.hpp"
#include "terminal.hpp"

#include <cstdlib>
#include <memory>

namespace zu::cli {

namespace {

struct DiffArguments
{
    std::vector<std::string> sources;
    std::string format = "text";
    std::string colour = "auto";
    bool isForGit = false;
};

/// A manifest to compare.
struct ComparedManifest
{
    std::string name; ///< as messages show it
    std::string path;
};

/// What git gives for the side on which a file is not there.
constexpr char k_noFile[] = "/dev/null";

/// The package of a side, and its manifest's bytes.
PackageInfo readCompared(const ComparedManifest& side, bool mayBeAbsent, std::string& bytes,
                         std::vector<UnreadableManifest>& unreadable)
{
    PackageInfo package;
    if (mayBeAbsent && side.path == k_noFile)
        return package;
    std::string failure;
    ManifestSyntaxError error;
    if (!readManifestBytes(side.path, bytes, failure))
        unreadable.push_back({side.name, failure});
    else if (!readManifest(bytes, package, &error))
        unreadable.push_back({side.name, wordsOf(error)});
    return package;
}

ManifestDifference compare(const ComparedManifest& before, const ComparedManifest& after, bool mayBeAbsent)
{
    ManifestDifference difference;
    difference.before = before.name;
    difference.after = after.name;
    std::string bytesBefore;
    std::string bytesAfter;
    const PackageInfo packageBefore = readCompared(before, mayBeAbsent, bytesBefore, difference.unreadable);
    const PackageInfo packageAfter = readCompared(after, mayBeAbsent, bytesAfter, difference.unreadable);
    if (!difference.unreadable.empty())
        return difference;
    difference.isIdentical = bytesBefore == bytesAfter;
    if (!difference.isIdentical)
        difference.changes = authoring::differences(packageBefore, packageAfter);
    return difference;
}

ExitCode diffOfFiles(const DiffArguments& arguments)
{
    if (arguments.sources.size() != 2 || (arguments.sources[0] == "-" && arguments.sources[1] == "-")) {
        complain("diff compares two manifests, of which one may be standard input");
        return k_usage;
    }
    const std::string before = manifestPath(arguments.sources[0]);
    const std::string after = manifestPath(arguments.sources[1]);
    const ManifestDifference difference = compare({shownName(before), before}, {shownName(after), after}, false);
    for (const UnreadableManifest& manifest : difference.unreadable)
        complain("cannot read " + manifest.name + ": " + manifest.reason);
    const std::string report =
        arguments.format == "json" ? jsonReport(difference) : textReport(difference, isColourWanted(arguments.colour));
    if (!writeOutput(report))
        return k_outputFailed;
    if (!difference.unreadable.empty())
        return k_inputFailed;
    return difference.changes.empty() ? k_success : k_findings;
}

/// git writes to its pager, which shows colours when it says so.
bool isColourWantedByGit(const std::string& choice)
{
    const char* const isPaged = std::getenv("GIT_PAGER_IN_USE");
    const char* const noColour = std::getenv("NO_COLOR");
    const bool isAutomatic = choice == "auto" && (!noColour || *noColour == '\0');
    return isColourWanted(choice) || (isAutomatic && isPaged && std::string_view(isPaged) == "true");
}

/// What stands above the changes of a file, for git shows those of many.
std::string headingOf(const std::vector<std::string>& words, bool isColoured)
{
    constexpr std::size_t k_wordsOfRename = 9;
    std::string heading = "manifest " + words[0];
    if (words[1] == k_noFile)
        heading += " (new)";
    else if (words[4] == k_noFile)
        heading += " (deleted)";
    else if (words.size() == k_wordsOfRename)
        heading += " (now " + words[7] + ")";
    return painted(displayed(heading), "1", isColoured) + "\n";
}

/// The words are those of git's external diff: PATH OLD-FILE OLD-HEX OLD-MODE NEW-FILE NEW-HEX NEW-MODE, of a file that
/// got another name two more, of one that is not merged PATH alone. What a file holds is no failure to git, which would
/// end with the first one.
ExitCode diffForGit(const DiffArguments& arguments)
{
    const std::vector<std::string>& words = arguments.sources;
    const bool isColoured = isColourWantedByGit(arguments.colour);
    if (words.size() == 1)
        return writeOutput("manifest " + displayed(words[0]) + " is not merged\n") ? k_success : k_outputFailed;
    if (words.size() != 7 && words.size() != 9) {
        complain("--git is for git, which gives the path and three words for each of two files");
        return k_usage;
    }
    const ManifestDifference difference = compare({words[0], words[1]}, {words[0], words[4]}, true);
    if (arguments.format == "json")
        return writeOutput(jsonReport(difference)) ? k_success : k_outputFailed;
    std::string report = headingOf(words, isColoured);
    for (const UnreadableManifest& manifest : difference.unreadable)
        report += "cannot be read: " + displayed(manifest.reason) + "; git diff --no-ext-diff shows its text\n";
    report += textReport(difference, isColoured);
    return writeOutput(report) ? k_success : k_outputFailed;
}

std::function<ExitCode()> prepareDiff(Arguments& arguments)
{
    auto parsed = std::make_shared<DiffArguments>();
    arguments.require(parsed->sources, "SOURCE", "FILE|FOLDER|-",
                      "Two manifests, before and after: files, package folders (their manifest.xml), or - for standard "
                      "input. The exit code is 1 when the packages differ; 0 when they do not, also where the texts of "
                      "the manifests do (in formatting, comments, what no package holds), which is said then");
    arguments.choice(parsed->format, "--format", {"text", "json"}, "What to write: text or json");
    arguments.choice(parsed->colour, "--color", {"auto", "always", "never"}, "Whether to use colours");
    arguments.flag(parsed->isForGit, "--git",
                   "Take the words that git gives to an external diff, and end with 0 as it demands");
    return [parsed] { return parsed->isForGit ? diffForGit(*parsed) : diffOfFiles(*parsed); };
}

constexpr Example k_diffExamples[] = {
    {"zupackage diff story-teller-1.0 story-teller", "Compare the packages in two folders"},
    {"git show HEAD:manifest.xml | zupackage diff - manifest.xml", "Compare with what was committed"},
    {"git config diff.zupackage.command 'zupackage diff --git'",
     "Have git compare the files that have the attribute diff=zupackage so"},
};

} // namespace

const Command k_diff = {"diff", "Tell what makes one package another", prepareDiff, k_diffExamples};

} // namespace zu::cli
