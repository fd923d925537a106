#pragma once

#include "support/files.hpp"
#include "support/program.hpp"

#include <string>
#include <vector>

namespace zu::test {

/// A git repository of its own, whatever git is told elsewhere on the machine; its branch is "main". It goes with the
/// object.
class GitRepository
{
public:
    GitRepository();

    /// Runs git in the repository.
    ProgramResult git(const std::vector<std::string>& arguments) const;

    /// Runs git in the repository; throws std::runtime_error when it fails.
    std::string run(const std::vector<std::string>& arguments) const;

    std::filesystem::path path(const std::string& name) const { return m_folder.path() / name; }

    /// Writes a file and commits everything.
    void commit(const std::string& name, const std::string& content) const;

private:
    TemporaryFolder m_folder;
};

} // namespace zu::test
