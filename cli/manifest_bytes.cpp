#include "manifest_bytes.hpp"

#include <QtCore/QFile>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <system_error>

namespace zu::cli {

namespace {

/// Reads at most a byte more than the largest document that is read, so that a device without an end has one.
bool read(QFile& file, std::string& bytes, std::string& failure)
{
    constexpr std::size_t k_most = std::size_t{64} * 1024 * 1024 + 1;
    // Of the size of most manifests, which are small; devices and pipes say that they have none.
    const qint64 block = std::clamp<qint64>(file.size() + 1, 4 * 1024, 64 * 1024);
    while (bytes.size() < k_most) {
        const std::size_t before = bytes.size();
        bytes.resize(before + static_cast<std::size_t>(block));
        const qint64 count = file.read(&bytes[before], block);
        bytes.resize(before + static_cast<std::size_t>(std::max<qint64>(count, 0)));
        if (count < 0)
            failure = file.errorString().toStdString();
        if (count <= 0)
            break;
    }
    return failure.empty();
}

} // namespace

bool readManifestBytes(const std::string& path, std::string& bytes, std::string& failure)
{
    QFile file(QString::fromStdString(path));
    const bool isOpen = path == "-" ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly);
    if (!isOpen) {
        failure = file.errorString().toStdString();
        return false;
    }
    return read(file, bytes, failure);
}

std::string manifestPath(const std::string& source, const char* name)
{
    std::error_code error;
    return source != "-" && std::filesystem::is_directory(source, error) ? source + "/" + name : source;
}

std::string shownName(const std::string& path) { return path == "-" ? "standard input" : path; }

} // namespace zu::cli
