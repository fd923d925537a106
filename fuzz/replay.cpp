// Runs a target on files, in builds without a fuzzer.
// usage: PROGRAM FOLDER...
#include "target.hpp"

#include <filesystem>
#include <fstream>
#include <iterator>

int main(int argc, char** argv)
{
    namespace fs = std::filesystem;
    int files = 0;
    for (int i = 1; i < argc; ++i)
        for (const auto& entry : fs::recursive_directory_iterator(argv[i])) {
            if (!entry.is_regular_file())
                continue;
            std::ifstream in(entry.path(), std::ios::binary);
            const std::string bytes{std::istreambuf_iterator<char>(in), {}};
            std::cout << entry.path().string() << std::endl; // NOLINT(performance-avoid-endl): the last one crashed
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
            ++files;
        }
    return files > 0 ? 0 : 1;
}
