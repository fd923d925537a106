#include "support/files.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <stdlib.h>

namespace zu::test {

namespace fs = std::filesystem;

fs::path sourcePath(const std::string& relative) { return fs::path(ZU_SOURCE_FOLDER) / relative; }

std::vector<fs::path> examplePackages()
{
    std::vector<fs::path> folders;
    for (const auto& entry : fs::directory_iterator(sourcePath("examples/packages")))
        folders.push_back(entry.path());
    std::sort(folders.begin(), folders.end());
    return folders;
}

std::string readFile(const fs::path& path)
{
    std::ifstream in(path, std::ios::binary);
    if (!in)
        throw std::runtime_error("cannot read " + path.string());
    return {std::istreambuf_iterator<char>(in), {}};
}

void writeFile(const fs::path& path, std::string_view bytes)
{
    std::ofstream out(path, std::ios::binary);
    out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!out.flush())
        throw std::runtime_error("cannot write " + path.string());
}

void expectGolden(const std::string& actual, const std::string& name)
{
    const fs::path golden = sourcePath("tests/golden/" + name);
    if (std::getenv("ZU_UPDATE_GOLDEN") != nullptr)
        writeFile(golden, actual);
    EXPECT_EQ(actual, readFile(golden)) << "golden text " << name;
}

TemporaryFolder::TemporaryFolder()
{
    std::string pattern = (fs::temp_directory_path() / "zupackage-XXXXXX").string();
    if (mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("cannot make a temporary folder");
    m_path = pattern;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::string TemporaryFolder::file(const std::string& name, std::string_view bytes) const
{
    writeFile(m_path / name, bytes);
    return (m_path / name).string();
}

} // namespace zu::test
