#include "support/git_repository.hpp"

#include <stdexcept>

namespace zu::test {

GitRepository::GitRepository() { run({"init", "--quiet", "--initial-branch=main"}); }

ProgramResult GitRepository::git(const std::vector<std::string>& arguments) const
{
    const std::string folder = m_folder.path().string();
    ProgramSetting setting;
    // Also those that are set where git itself runs the tests, in a hook.
    setting.environment = {{"GIT_CONFIG_GLOBAL", "/dev/null"},
                           {"GIT_CONFIG_NOSYSTEM", "1"},
                           {"GIT_DIR", folder + "/.git"},
                           {"GIT_WORK_TREE", folder},
                           {"GIT_INDEX_FILE", folder + "/.git/index"},
                           {"GIT_AUTHOR_NAME", "A"},
                           {"GIT_AUTHOR_EMAIL", "a@example.org"},
                           {"GIT_COMMITTER_NAME", "A"},
                           {"GIT_COMMITTER_EMAIL", "a@example.org"},
                           {"LC_ALL", "C"}};
    std::vector<std::string> words = {"-C", folder};
    words.insert(words.end(), arguments.begin(), arguments.end());
    return runProgram("git", words, setting);
}

std::string GitRepository::run(const std::vector<std::string>& arguments) const
{
    const ProgramResult result = git(arguments);
    if (result.exitCode != 0)
        throw std::runtime_error("git " + arguments.front() + " failed: " + result.errors);
    return result.output;
}

void GitRepository::commit(const std::string& name, const std::string& content) const
{
    writeFile(path(name), content);
    run({"add", "--all"});
    run({"commit", "--quiet", "--message=" + name});
}

} // namespace zu::test
