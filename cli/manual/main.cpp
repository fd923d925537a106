// Writes the manual pages, the completion of shells, the schemas and the reference of manifests into a folder.
#include "manual/completion.hpp"
#include "manual/man_page.hpp"
#include "manual/manifest_reference.hpp"

#include <zupackage/authoring/schema.hpp>

#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

constexpr char k_schemaFile[] = "manifest.xsd";

/// Leads from the schema's name to the file beside the catalog.
std::string xmlCatalog()
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<catalog xmlns=\"urn:oasis:names:tc:entity:xmlns:xml:catalog\">\n"
           "  <uri name=\"" +
           zu::authoring::xmlSchemaUri() + "\" uri=\"" + k_schemaFile + "\"/>\n</catalog>\n";
}

} // namespace

int main(int argc, char** argv)
{
    using namespace zu::cli;
    namespace fs = std::filesystem;
    if (argc != 2) {
        std::fputs("usage: zupackage_manual FOLDER\n", stderr);
        return 2;
    }
    const fs::path folder = argv[1];
    bool isWritten = true;
    const auto write = [&](const fs::path& path, const std::string& text) {
        fs::create_directories((folder / path).parent_path());
        isWritten = isWritten && (std::ofstream(folder / path) << text).flush();
    };
    const ProgramDefinition program = programDefinition();
    write("man/man1/zupackage.1", programPage(program));
    for (const CommandDefinition& command : program.commands)
        write("man/man1/zupackage-" + command.name + ".1", commandPage(program, command));
    write("man/man5/zupackage-manifest.5", manifestPage(program.version));
    write("bash-completion/completions/zupackage", bashCompletion(program));
    write("zsh/site-functions/_zupackage", zshCompletion(program));
    write("fish/vendor_completions.d/zupackage.fish", fishCompletion(program));
    const fs::path schemas = "zupackage/schemas";
    write(schemas / k_schemaFile, zu::authoring::xmlSchema());
    write(schemas / "manifest.schema.json", zu::authoring::jsonSchema());
    write(schemas / "catalog.xml", xmlCatalog());
    write("manifest.md", manifestReferenceInMarkdown());
    return isWritten ? 0 : 1;
}
