#include "manifest_bytes.hpp"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <system_error>
#include <unistd.h>

namespace zu::cli {

namespace {

/// A file that is open for reading. Its name may be any bytes, which QFile would take for UTF-8.
class InputFile
{
public:
    explicit InputFile(const std::string& path) : m_descriptor(open(path.c_str(), O_RDONLY | O_CLOEXEC)) {}
    ~InputFile()
    {
        if (m_descriptor >= 0)
            close(m_descriptor);
    }
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

std::string lastError() { return std::error_code(errno, std::generic_category()).message(); }

constexpr std::size_t k_largestBlock = std::size_t{64} * 1024;

/// Of the size of most manifests, which are small; devices and pipes say that they have none.
std::size_t blockSizeFor(const InputFile& file)
{
    const off_t size = lseek(file.descriptor(), 0, SEEK_END);
    lseek(file.descriptor(), 0, SEEK_SET);
    return std::clamp<std::size_t>(size > 0 ? static_cast<std::size_t>(size) + 1 : 0, std::size_t{4} * 1024,
                                   k_largestBlock);
}

bool readDescriptor(int descriptor, std::size_t block, std::size_t most, std::string& bytes, std::string& failure)
{
    while (bytes.size() < most) {
        const std::size_t before = bytes.size();
        const std::size_t wanted = std::min(block, most - before);
        bytes.resize(before + wanted);
        const ssize_t count = ::read(descriptor, &bytes[before], wanted);
        const bool isInterrupted = count < 0 && errno == EINTR;
        if (count < 0 && !isInterrupted)
            failure = lastError();
        bytes.resize(before + static_cast<std::size_t>(std::max<ssize_t>(count, 0)));
        if (count <= 0 && !isInterrupted)
            break;
    }
    return failure.empty();
}

} // namespace

bool readFileBytes(const std::string& path, std::size_t most, std::string& bytes, std::string& failure)
{
    const InputFile file(path);
    if (file.descriptor() < 0) {
        failure = lastError();
        return false;
    }
    return readDescriptor(file.descriptor(), blockSizeFor(file), most, bytes, failure);
}

bool readManifestBytes(const std::string& path, std::string& bytes, std::string& failure)
{
    // A byte more than the largest document that is read, so that a device without an end has one.
    constexpr std::size_t k_most = std::size_t{64} * 1024 * 1024 + 1;
    return path == "-" ? readDescriptor(STDIN_FILENO, k_largestBlock, k_most, bytes, failure)
                       : readFileBytes(path, k_most, bytes, failure);
}

std::string manifestPath(const std::string& source, const char* name)
{
    std::error_code error;
    return source != "-" && std::filesystem::is_directory(source, error) ? source + "/" + name : source;
}

std::string shownName(const std::string& path) { return path == "-" ? "standard input" : path; }

} // namespace zu::cli
