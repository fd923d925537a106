#include "manifest/package_info_writer.hpp"
#include "records/private_record.hpp"
#include "xml/nodes.hpp"

#include <zupackage/package_info.hpp>

#include <QtCore/QFile>
#include <QtCore/QSaveFile>

#include <filesystem>
#include <stdexcept>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace zupackage {

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const QString& reason) { throw std::runtime_error(xml::toUtf8(reason)); }
[[noreturn]] void fail(std::errc reason) { throw std::runtime_error(std::make_error_code(reason).message()); }

/// What QSaveFile cannot name would be written into a file of another name.
[[noreturn]] void failForName() { fail(QStringLiteral("The name is no UTF-8")); }

/// What a chain of symbolic links leads to, which need not exist.
fs::path linkTarget(fs::path path)
{
    constexpr int k_mostLinks = 40; // as Linux has it
    std::error_code none;
    for (int links = 0; fs::is_symlink(path, none); ++links) {
        if (links == k_mostLinks)
            fail(std::errc::too_many_symbolic_link_levels);
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

/// Where a file is to be written, as Qt names it. QSaveFile itself follows one link, and a relative one by the look of
/// its path, not through linked folders.
QString fileBehind(const QString& path)
{
    const std::string target = linkTarget(QFile::encodeName(path).toStdString());
    QString name = QFile::decodeName(target.c_str());
    if (QFile::encodeName(name).toStdString() != target)
        failForName();
    return name;
}

void keepOwner(QSaveFile& file, const struct stat& present)
{
    const bool isKept = fchown(file.handle(), present.st_uid, present.st_gid) == 0 ||
                        fchown(file.handle(), static_cast<uid_t>(-1), present.st_gid) == 0;
    static_cast<void>(isKept); // where that is not allowed, the file is the writer's
}

/// QSaveFile takes what this process may do for what the owner may, so that it lets the owner write what root can.
/// Comes last, for a change of owner and, by others than root, writing take the set-id bits away.
void keepMode(QSaveFile& file, const struct stat& present)
{
    constexpr mode_t k_modeBits = 07777;
    mode_t mode = present.st_mode & k_modeBits;
    struct stat own = {};
    const bool isKnown = fstat(file.handle(), &own) == 0;
    // Nobody is to act as the writer because the file was another's.
    if (!isKnown || own.st_uid != present.st_uid)
        mode &= ~static_cast<mode_t>(S_ISUID);
    if (!isKnown || own.st_gid != present.st_gid)
        mode &= ~static_cast<mode_t>(S_ISGID);
    const bool isKept = fchmod(file.handle(), mode) == 0;
    static_cast<void>(isKept); // some file systems have one mode for all files
}

void write(QSaveFile& file, const std::string& content)
{
    const auto size = static_cast<qint64>(content.size());
    for (qint64 written = 0; written < size;) {
        const qint64 part = file.write(content.data() + written, size - written);
        if (part <= 0)
            fail(file.errorString());
        written += part;
    }
}

void replaceFile(const std::string& name, const std::string& content)
{
    const QString path = xml::fromUtf8(name);
    if (xml::toUtf8(path) != name)
        failForName();
    // Qt would take the working folder for the file's, and the name for what stands before the zero.
    if (path.isEmpty())
        fail(std::errc::no_such_file_or_directory);
    if (path.contains(QChar(0)))
        fail(std::errc::invalid_argument);
    const QString target = fileBehind(path);
    struct stat present = {};
    const bool isPresent = stat(QFile::encodeName(target).constData(), &present) == 0;
    // A device or a pipe would be replaced by a file, and what reads it would not see anything.
    if (isPresent && !S_ISREG(present.st_mode))
        fail(QStringLiteral("Not a regular file"));
    QSaveFile file(target);
    // Without a buffer, because what does not fit is written in part, and only writing the rest gives the reason.
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        fail(file.errorString());
    if (isPresent)
        keepOwner(file, present);
    write(file, content);
    if (isPresent)
        keepMode(file, present);
    if (!file.commit())
        fail(file.errorString());
}

} // namespace

} // namespace zupackage

namespace zu {

void saveManifest(const PackageInfo& package, const std::string& path)
{
    replaceManifest(path, zupackage::manifestFileOf(PrivateRecord::of(package)));
}

void replaceManifest(const std::string& path, const std::string& bytes)
{
    try {
        zupackage::replaceFile(path, bytes);
    } catch (const std::runtime_error& error) {
        throw std::runtime_error("Could not write " + std::string(path.c_str()) + ": " + error.what());
    }
}

} // namespace zu
