#include "commands/new.hpp"

#include "display_width.hpp"
#include "new/skeleton.hpp"
#include "output.hpp"

#include <zupackage/authoring/check.hpp>
#include <zupackage/authoring/schema.hpp>

#include <QtCore/QString>
#include <QtCore/QUuid>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <unistd.h>

namespace zu::cli {

namespace {

namespace fs = std::filesystem;

struct NewArguments
{
    std::vector<std::string> folders;
    std::string kind = "behavior";
    std::optional<std::string> uuid;
    std::optional<std::string> name;
    std::optional<std::string> description;
    std::vector<std::string> languages;
    bool namesSchema = false;
};

std::string lastNameOf(const std::string& folder)
{
    std::error_code error;
    const fs::path absolute = fs::absolute(folder, error).lexically_normal();
    return (absolute.has_filename() ? absolute : absolute.parent_path()).filename().string();
}

SkeletonWish wishOf(const NewArguments& arguments, const std::string& folder)
{
    SkeletonWish wish;
    wish.kind = arguments.kind;
    wish.name = arguments.name ? *arguments.name : lastNameOf(folder);
    wish.description = arguments.description.value_or(wish.name);
    wish.slug = slugOf(wish.name);
    wish.uuid = arguments.uuid ? *arguments.uuid : QUuid::createUuid().toString(QUuid::WithoutBraces).toStdString();
    wish.languages = arguments.languages.empty() ? std::vector<std::string>{"en"} : arguments.languages;
    return wish;
}

/// The manifest with a line that tells editors its schema, behind the XML declaration.
std::string withSchema(std::string manifest)
{
    return manifest.insert(manifest.find('\n') + 1, "<?xml-model href=\"" + authoring::xmlSchemaUri() +
                                                        "\" schematypens=\"http://www.w3.org/2001/XMLSchema\"?>\n");
}

bool isControl(QChar c) { return c.category() == QChar::Other_Control; }

/// What a package cannot have for a text, in words that go on a sentence; empty when it can.
const char* blankness(const std::string& text)
{
    return QString::fromStdString(text).trimmed().isEmpty() ? "is empty or white space alone" : "";
}

/// What it cannot have for a name or a uuid, which stand in one line.
const char* unfitness(const std::string& text)
{
    const char* const fault = blankness(text);
    if (*fault != '\0')
        return fault;
    const QString characters = QString::fromStdString(text);
    return std::any_of(characters.begin(), characters.end(), &isControl) ? "has a control character in it" : "";
}

/// What is wrong with what the user gave; empty when nothing is.
std::string faultOf(const NewArguments& arguments)
{
    struct Option
    {
        const char* name;
        const std::optional<std::string>& value;
        const char* (*faultOf)(const std::string& value);
    };
    for (const Option& option :
         {Option{"--uuid", arguments.uuid, unfitness}, Option{"--name", arguments.name, unfitness},
          Option{"--description", arguments.description, blankness}}) {
        const std::string fault = option.value ? option.faultOf(*option.value) : "";
        if (!fault.empty())
            return std::string(option.name) + ": the value " + fault;
    }
    for (auto language = arguments.languages.begin(); language != arguments.languages.end(); ++language) {
        if (std::find(arguments.languages.begin(), language, *language) != language)
            return "--language: \"" + displayed(*language) + "\" is given twice";
    }
    for (const std::string& folder : arguments.folders) {
        const std::string fault = arguments.name ? "" : unfitness(lastNameOf(folder));
        if (!fault.empty())
            return "FOLDER: the name of the folder \"" + displayed(folder) + "\" " + fault +
                   "; give the package one by --name";
    }
    return {};
}

/// Says what a check of the manifest finds, which comes from what the user gave.
/// @return whether it finds nothing.
bool isFlawless(const std::string& manifest)
{
    const authoring::CheckReport report = authoring::check(authoring::SourceDocument::parse(manifest));
    for (const authoring::Diagnostic& finding : report.findings)
        complain(finding.message);
    return report.findings.empty();
}

/// Makes a file that is not there yet, with the folders that it lies in.
/// @return why it could not be made; empty when it was.
std::string makeFile(const fs::path& path, const std::string& content, bool isExecutable)
{
    std::error_code error;
    fs::create_directories(path.parent_path(), error);
    if (error)
        return error.message();
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, isExecutable ? 0777 : 0666);
    if (file < 0)
        return std::strerror(errno);
    const bool isWritten = write(file, content.data(), content.size()) == static_cast<ssize_t>(content.size());
    const int reason = errno;
    const bool isClosed = close(file) == 0;
    return isWritten && isClosed ? std::string() : std::strerror(isWritten ? errno : reason);
}

ExitCode makePackage(const NewArguments& arguments, const std::string& folder)
{
    Skeleton skeleton;
    makeSkeleton(wishOf(arguments, folder), skeleton);
    const std::string content = skeleton.package.saveToManifestContent();
    const std::string manifest = arguments.namesSchema ? withSchema(content) : content;
    if (!isFlawless(manifest))
        return k_usage;

    // Last, so that a folder with a manifest has all that it names.
    skeleton.files.push_back({"manifest.xml", manifest, false});
    std::error_code error;
    for (const SkeletonFile& file : skeleton.files) {
        const fs::path path = fs::path(folder) / file.path;
        const fs::file_type type = fs::symlink_status(path, error).type();
        if (type == fs::file_type::not_found)
            continue;
        complain(type == fs::file_type::none ? "cannot make " + path.string() + ": " + error.message()
                                             : path.string() + " is there already");
        return k_outputFailed;
    }
    for (const SkeletonFile& file : skeleton.files) {
        const fs::path path = fs::path(folder) / file.path;
        const std::string failure = makeFile(path, file.content, file.isExecutable);
        if (!failure.empty()) {
            complain("cannot make " + path.string() + ": " + failure);
            return k_outputFailed;
        }
        if (!writeOutput(path.string() + "\n"))
            return k_outputFailed;
    }
    return k_success;
}

ExitCode makePackages(const NewArguments& arguments)
{
    const std::string fault = faultOf(arguments);
    if (!fault.empty()) {
        complain(fault);
        return k_usage;
    }
    ExitCode result = k_success;
    for (const std::string& folder : arguments.folders)
        result = worse(result, makePackage(arguments, folder));
    return result;
}

std::function<ExitCode()> prepareNew(Arguments& arguments)
{
    auto parsed = std::make_shared<NewArguments>();
    arguments.require(parsed->folders, "FOLDER", "FOLDER", "Where the package is to be; files that are there stay");
    arguments.choice(parsed->kind, "--kind", skeletonKinds(), "What the package is for");
    arguments.option(parsed->uuid, "--uuid", "ID", "What installers know the package by; by default a random one");
    arguments.option(parsed->name, "--name", "TEXT", "What the package is called; by default as the folder");
    arguments.option(parsed->description, "--description", "TEXT",
                     "What stores tell of the package; by default its name");
    arguments.repeated(parsed->languages, "--language", "CODE", "A language of the package; by default en");
    arguments.flag(parsed->namesSchema, "--schema", "Tell editors the schema, by a line at the manifest's beginning");
    return [parsed] { return makePackages(*parsed); };
}

constexpr Example k_newExamples[] = {
    {"zupackage new hello", "Make a package with one behavior, in English, in the folder hello"},
    {"zupackage new chat --kind dialog --language en --language fr", "Make one for a dialog in two languages"},
};

} // namespace

const Command k_new = {"new", "Make the skeleton of a package", prepareNew, k_newExamples};

} // namespace zu::cli
