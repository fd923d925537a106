#include "support/program.hpp"

#include <gmock/gmock.h>

#include <regex>
#include <sstream>

namespace zu {

using testing::IsEmpty;
using testing::Not;

namespace {

/// The names that a library defines for others, as the linker knows them.
std::vector<std::string> exportedNames(const std::string& library)
{
    const test::ProgramResult result =
        test::runProgram("/usr/bin/nm", {"--dynamic", "--defined-only", "--format=posix", library});
    std::vector<std::string> names;
    std::istringstream lines(result.output);
    for (std::string line; std::getline(lines, line);)
        names.push_back(line.substr(0, line.find(' ')));
    return names;
}

} // namespace

TEST(Structure, OnlyNamesOfOursLeaveTheLibraries)
{
    const std::regex ours("_Z(T[ISV]|T[hv].*_)?N[KRO]*2(zu|VX).*");
    for (const char* library : {ZU_LIBRARY, ZUPACKAGE_LIBRARY, ZUPACKAGE_AUTHORING_LIBRARY}) {
        SCOPED_TRACE(library);
        const std::vector<std::string> names = exportedNames(library);
        EXPECT_THAT(names, Not(IsEmpty()));
        for (const std::string& name : names)
            EXPECT_TRUE(std::regex_match(name, ours)) << name;
    }
}

} // namespace zu
