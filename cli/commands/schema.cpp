#include "commands/schema.hpp"

#include "output.hpp"

#include <zupackage/authoring/schema.hpp>

#include <memory>
#include <string>

namespace zu::cli {

namespace {

std::function<ExitCode()> prepareSchema(Arguments& arguments)
{
    auto format = std::make_shared<std::string>("xsd");
    arguments.choice(*format, "--format", {"xsd", "json"},
                     "What to write: xsd, the XML Schema of manifests, or json, the JSON Schema of manifests as JSON");
    return [format] {
        const std::string schema = *format == "json" ? authoring::jsonSchema() : authoring::xmlSchema();
        return writeOutput(schema) ? k_success : k_outputFailed;
    };
}

constexpr Example k_schemaExamples[] = {
    {"zupackage schema > manifest.xsd", "Write the XML Schema"},
    {"zupackage schema --format json > manifest.schema.json", "Write the JSON Schema of manifests as JSON"},
};

} // namespace

const Command k_schema = {"schema", "Write the schema of manifests, for editors and validators", prepareSchema,
                          k_schemaExamples};

} // namespace zu::cli
