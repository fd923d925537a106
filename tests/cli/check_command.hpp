#pragma once

#include "support/files.hpp"
#include "support/program.hpp"
#include "support/texts.hpp"

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <utility>
#include <vector>

namespace zu::test {

inline const std::string k_good = "<package uuid=\"a\" version=\"1.0\">\n"
                                  "  <names><name lang=\"en\">A</name></names>\n"
                                  "  <descriptions><description lang=\"en\">Shows A</description></descriptions>\n"
                                  "  <descriptionLanguages><language>en</language></descriptionLanguages>\n"
                                  "  <contents><webContent path=\"web\"/></contents>\n"
                                  "</package>\n";

inline const std::string k_bad = replaced(k_good, "1.0", "one");      // an error
inline const std::string k_dubious = replaced(k_good, ">A<", "> A<"); // a warning
/// An info.
inline const std::string k_undescribed =
    replaced(k_good, "<descriptions><description lang=\"en\">Shows A</description></descriptions>", "");
/// An error that a safe fix removes.
inline const std::string k_fixable = replaced(k_good, " uuid", " installOnlyAtStartup=\" true \" uuid");

inline constexpr const char* k_machineFormats[] = {"json", "sarif", "junit", "github"};
inline constexpr const char* k_formats[] = {"text", "json", "sarif", "junit", "github"};

/// zupackage check, with a folder for manifests.
class CheckCommand : public testing::Test
{
protected:
    CheckCommand() { folder.file("web", ""); }

    static ProgramResult check(std::vector<std::string> arguments, const ProgramSetting& setting = {})
    {
        arguments.insert(arguments.begin(), "check");
        return runProgram(ZUPACKAGE_PROGRAM, arguments, setting);
    }

    static ProgramResult checkWithoutPrivileges(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), "check");
        return runWithoutPrivileges(ZUPACKAGE_PROGRAM, arguments);
    }

    std::string manifest(const std::string& content) const { return folder.file("manifest.xml", content); }
    std::string content() const { return readFile(folder.path() / "manifest.xml"); }

    /// A package in a folder of that name.
    std::string package(const std::string& name, const std::string& content) const
    {
        std::filesystem::create_directories(folder.path() / name);
        folder.file(name + "/web", "");
        return folder.file(name + "/manifest.xml", content);
    }

    TemporaryFolder folder;
};

} // namespace zu::test
