#include "support/json_schema.hpp"

#include "support/files.hpp"
#include "support/program.hpp"

namespace zu::test {

std::string invalidityOfJson(const std::string& document, const std::string& schema)
{
    const ProgramResult result =
        runProgram("/usr/bin/python3", {sourcePath("tests/schemas/validate.py").string(), sourcePath(schema).string()},
                   {document, {}, {}});
    return result.exitCode == 0 ? "" : "invalid: " + result.errors;
}

} // namespace zu::test
