#pragma once

#include <cstddef>
#include <string>

namespace zu::cli {

/// Reads what a file holds, of any name and kind, but not more than `most` bytes of it.
/// @param failure receives why it could not be read.
/// @return whether it could.
bool readFileBytes(const std::string& path, std::size_t most, std::string& bytes, std::string& failure);

/// Reads what a manifest file holds, or standard input for "-". Of what is larger than any document that is read, a
/// byte more than that.
/// @param failure receives why it could not be read.
/// @return whether it could.
bool readManifestBytes(const std::string& path, std::string& bytes, std::string& failure);

/// The manifest that a user names: a folder stands for the file of that name in it.
std::string manifestPath(const std::string& source, const char* name = "manifest.xml");

/// As messages show it.
std::string shownName(const std::string& path);

} // namespace zu::cli
