#include "check/findings.hpp"
#include "check/package_folder.hpp"
#include "check/wording.hpp"

#include <map>
#include <set>

namespace zupackage::check {

namespace {

using zu::authoring::AttributeEntry;
using zu::authoring::ExampleFrame;
using zu::authoring::Severity;
using zu::authoring::ValueKind;

constexpr std::string_view k_topic = "/package/contents/dialogContent/topic";
constexpr std::string_view k_executable = "/package/executableFiles/file";

/// Calls `visit(attribute)` for each path in the document that is not empty.
template <typename Visit>
void forEachPath(const Outline& outline, Visit visit)
{
    for (const SourceNode element : outline.elements()) {
        for (const AttributeEntry& known : outline.entry(element)->attributes) {
            const SourceAttribute path =
                known.kind == ValueKind::Path ? plainAttribute(element, known.name) : SourceAttribute();
            if (path && !path.value().empty())
                visit(path);
        }
    }
}

/// The first word of a command line.
std::string_view programOf(SourceAttribute command)
{
    const std::string_view line = trimmed(command.value());
    return line.substr(0, line.find(' '));
}

/// Calls `visit(attribute, program)` for each service that starts a file of the package. An absolute path and a name
/// without a folder may be programs of the robot.
template <typename Visit>
void forEachProgram(const Outline& outline, Visit visit)
{
    for (const SourceNode service : outline.elements("/package/services/service")) {
        const SourceAttribute command = plainAttribute(service, "execStart");
        const std::string_view program = programOf(command);
        if (program.find('/') != std::string_view::npos && program.front() != '/')
            visit(command, program);
    }
}

/// Calls `visit(attribute, path)` for all that the document names in the package.
template <typename Visit>
void forEachFile(const Outline& outline, Visit visit)
{
    forEachPath(outline, [&](SourceAttribute path) { visit(path, path.value()); });
    forEachProgram(outline, visit);
}

void findMissingFiles(const Checked& checked, Findings& findings)
{
    if (!checked.folder)
        return;
    const PackageFolder& folder = *checked.folder;
    forEachFile(checked.outline, [&](SourceAttribute attribute, std::string_view path) {
        if (!findings.isFull() && folder.find(path) == FileKind::Missing)
            findings.at(attribute, "the package has no " + inQuotes(path));
    });
}

void findFilesOutside(const Checked& checked, Findings& findings)
{
    if (!checked.folder)
        return;
    const PackageFolder& folder = *checked.folder;
    forEachFile(checked.outline, [&](SourceAttribute attribute, std::string_view path) {
        if (!findings.isFull() && folder.find(path) == FileKind::Outside)
            findings.at(attribute, inQuotes(path) + " leads out of the package");
    });
}

void findIrregularFiles(const Checked& checked, Findings& findings)
{
    if (!checked.folder)
        return;
    const auto report = [&](SourceAttribute attribute, std::string_view path) {
        const FileKind kind = checked.folder->find(path);
        if (!path.empty() && (kind == FileKind::Folder || kind == FileKind::Special))
            findings.at(attribute, inQuotes(path) + " is no file that could be made executable");
    };
    for (const SourceNode file : checked.outline.elements(k_executable)) {
        const SourceAttribute path = plainAttribute(file, "path");
        report(path, path.value());
    }
    forEachProgram(checked.outline, report);
}

void findFilesNamedTwice(const Checked& checked, Findings& findings)
{
    if (!checked.folder)
        return;
    for (const std::string_view entry : {k_behaviorPath, k_topic, k_executable}) {
        std::map<std::string, SourceAttribute> seen;
        for (const SourceNode element : checked.outline.elements(entry)) {
            const SourceAttribute path = plainAttribute(element, "path");
            if (path.value().empty())
                continue;
            const auto [first, isNew] = seen.try_emplace(normalPath(path.value()), path);
            // Behaviors and executable files of one spelling have rules of their own.
            if (!isNew && (entry == k_topic || first->second.value() != path.value()))
                findings.at(path, inQuotes(path.value()) + " is named twice")
                    .see("the first time", first->second.owner());
        }
    }
}

std::set<std::string> normalPaths(const Outline& outline, std::string_view entry)
{
    std::set<std::string> paths;
    for (const SourceNode element : outline.elements(entry))
        paths.insert(normalPath(plainValue(element, "path")));
    return paths;
}

/// Reports what lies beside the entries' files, of their kind, and is none of them.
void reportUnlisted(const Checked& checked, Findings& findings, std::string_view entry, FileKind kind, const char* what)
{
    if (!checked.folder || !checked.document.isComplete() || !checked.document.root())
        return;
    const std::set<std::string> listed = normalPaths(checked.outline, entry);
    std::set<Siblings> places;
    for (const std::string& path : listed) {
        if (kind == FileKind::Folder)
            places.insert({parentOf(path), ""});
        else
            places.insert({parentOf(path), extensionOf(path)});
    }
    const PackageFolder& folder = *checked.folder;
    for (const Siblings& siblings : places) {
        // Beside a file without a kind of its own, in the package itself, there is everything else.
        if (siblings.folder.empty() && siblings.extension.empty())
            continue;
        for (const std::string& path : folder.list(siblings, kind)) {
            if (listed.count(path) == 0 && path != "manifest.xml")
                findings.at(checked.document.root(), "no " + std::string(what) + " names " + inQuotes(path));
        }
    }
}

void findUnlistedBehaviors(const Checked& checked, Findings& findings)
{
    reportUnlisted(checked, findings, k_behaviorPath, FileKind::Folder, "behavior");
}

void findUnlistedTopics(const Checked& checked, Findings& findings)
{
    reportUnlisted(checked, findings, k_topic, FileKind::Regular, "topic");
}

void findServicesNotExecutable(const Checked& checked, Findings& findings)
{
    if (!checked.folder)
        return;
    const std::set<std::string> executables = normalPaths(checked.outline, k_executable);
    const PackageFolder& folder = *checked.folder;
    for (const SourceNode service : checked.outline.elements("/package/services/service")) {
        const SourceAttribute command = plainAttribute(service, "execStart");
        const std::string_view program = programOf(command);
        if (!program.empty() && folder.find(program) == FileKind::Regular &&
            executables.count(normalPath(program)) == 0)
            findings.at(command, inQuotes(program) + " is not one of the executable files");
    }
}

} // namespace

const std::vector<RuleRow>& fileRules()
{
    static const std::vector<RuleRow> rules = {
        {{"missing-file", Severity::Error, "A file or folder that the package does not have",
          "The package installs, and fails when somebody asks for the behavior, the topic or the pages, or when the "
          "service is to start. Of the command line of a service its first word is meant; an absolute path and a name "
          "without a folder may be programs of the robot and are left alone.",
          ExampleFrame::Contents, "<webContent path=\"wbe\"/>", "<webContent path=\"web\"/>", "web/index.html"},
         findMissingFiles},
        {{"file-outside-package", Severity::Error, "A path that leads out of the package",
          "Absolute paths, \"..\" and links lead to files that are not installed with the package, and may belong to "
          "somebody else. An absolute path that a service starts may be a program of the robot and is left alone.",
          ExampleFrame::Contents, "<webContent path=\"../web\"/>", "<webContent path=\"web\"/>", "web/index.html"},
         findFilesOutside},
        {{"not-a-regular-file", Severity::Error, "An executable file or a program that is a folder or a device",
          "Installers make files executable; what else the path may lead to they refuse. A service whose program is no "
          "file does not start.",
          ExampleFrame::Package, "<executableFiles><file path=\"bin\"/></executableFiles>",
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>", "bin/clock"},
         findIrregularFiles},
        {{"file-named-twice", Severity::Warning, "A file that two entries name",
          "A topic in two languages is in one of them; a path in two spellings is one file.", ExampleFrame::Contents,
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"food.talk\"/>"
          "<topic language=\"en_GB\" path=\"food.talk\"/></dialogContent>",
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"food.talk\"/></dialogContent>", "food.talk"},
         findFilesNamedTwice},
        {{"unlisted-behavior", Severity::Info, "A folder beside the behaviors that is none",
          "Nobody can start it, and it is installed all the same. Beside a behavior that lies in the package itself "
          "nothing is looked for: pages, topics and programs have their folders there.",
          ExampleFrame::Contents, "<behaviorContent path=\"behaviors/bow\"><nature>solitary</nature></behaviorContent>",
          "<behaviorContent path=\"behaviors/bow\"><nature>solitary</nature></behaviorContent>"
          "<behaviorContent path=\"behaviors/wave\"><nature>solitary</nature></behaviorContent>",
          "behaviors/bow/main.steps behaviors/wave/main.steps"},
         findUnlistedBehaviors},
        {{"unlisted-topic", Severity::Info, "A file beside the topics that is none",
          "The robot does not talk about it, and it is installed all the same. Files that end as the topics do are "
          "looked at.",
          ExampleFrame::Contents,
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"topics/food.talk\"/></dialogContent>",
          "<dialogContent topicName=\"food\"><topic language=\"en\" path=\"topics/food.talk\"/></dialogContent>"
          "<dialogContent topicName=\"drinks\"><topic language=\"en\" path=\"topics/drinks.talk\"/></dialogContent>",
          "topics/food.talk topics/drinks.talk"},
         findUnlistedTopics},
        {{"service-not-executable", Severity::Warning, "A service whose program is not made executable",
          "Files are installed without the right to be executed, so that the service does not start.",
          ExampleFrame::Package, "<services><service name=\"clock\" execStart=\"bin/clock\"/></services>",
          "<services><service name=\"clock\" execStart=\"bin/clock\"/></services>"
          "<executableFiles><file path=\"bin/clock\"/></executableFiles>",
          "bin/clock"},
         findServicesNotExecutable},
    };
    return rules;
}

} // namespace zupackage::check
