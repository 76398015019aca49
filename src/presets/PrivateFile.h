#pragma once

#include <filesystem>

/// Folders and files that only the user may read: 0700 and 0600.
namespace tessaly {

/// Makes a private folder, and its parents with the usual permissions. True when it is there in the end.
bool createPrivateFolder(const std::filesystem::path& folder);

/// Makes an empty private file where there is nothing yet.
void createPrivateFile(const std::filesystem::path& file);

/// Takes the others' permissions from a folder or file and leaves the user's own as they are. Nothing happens
/// when it is missing, belongs to someone else or is a link.
void makePrivate(const std::filesystem::path& path);

/// Forces a file, or the names in a folder, to the disk.
bool syncToDisk(const std::filesystem::path& path);

/// The same name, in the same folder, with a suffix.
std::filesystem::path withSuffix(const std::filesystem::path& file, const char* suffix);

} // namespace tessaly
