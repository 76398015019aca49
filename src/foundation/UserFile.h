#pragma once

#include "foundation/AtomicFile.h"
#include "foundation/FileState.h"

#include <filesystem>
#include <optional>

namespace tessaly {

/// A file that the user asked for, written as a whole or not at all: until it is committed, and after any
/// failure, what was there stays. A symbolic link stays and is followed. A file that is there keeps its
/// permissions, and only one that the user may write to is replaced. The texts of the errors may be shown.
class UserFile {
  public:
    /// With `known`, no other file than that is replaced: `UserFileError::ChangedByOthers`.
    explicit UserFile(const std::filesystem::path& path, const std::optional<FileState>& known = {});

    std::error_code write(std::string_view bytes);

    /// Puts it in place; nothing can be written any more.
    std::error_code commit(AtomicFile::Durability durability);

  private:
    std::error_code open(const std::filesystem::path& path, const std::optional<FileState>& known);

    Descriptor folder_;
    std::optional<AtomicFile> file_; ///< none: it could not be opened
    std::error_code error_;          ///< that came of opening it
};

/// Writes the whole file.
std::error_code writeUserFile(const std::filesystem::path& path, std::string_view contents,
                              AtomicFile::Durability durability);

} // namespace tessaly
