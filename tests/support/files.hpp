#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace zu::test {

/// A file or folder of the source tree.
std::filesystem::path sourcePath(const std::string& relative);

/// The folders of the example packages, sorted by name.
std::vector<std::filesystem::path> examplePackages();

std::string readFile(const std::filesystem::path& path);
void writeFile(const std::filesystem::path& path, std::string_view bytes);

/// Expects `actual` to be the golden text tests/golden/`name`. With ZU_UPDATE_GOLDEN in the environment the golden file
/// is written instead; look at the difference before you commit it.
void expectGolden(const std::string& actual, const std::string& name);

/// A folder of its own that goes with the object.
class TemporaryFolder
{
public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }
    /// Writes a file in the folder and gives its path.
    std::string file(const std::string& name, std::string_view bytes) const;

private:
    std::filesystem::path m_path;
};

} // namespace zu::test
