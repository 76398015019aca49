#pragma once

#include "foundation/UserFile.h"

namespace tessaly {

/// A file of the user's that is saved again and again, unless others change it in between.
class SavedFile {
  public:
    explicit SavedFile(std::filesystem::path path) : path_{std::move(path)} {}

    const std::filesystem::path& path() const { return path_; }

    /// Writes the whole file: the first time in place of whatever is there, and from then on only in place of
    /// what was left there. `UserFileError::ChangedByOthers`: that is gone or another, and stays as it is.
    std::error_code save(std::string_view contents, AtomicFile::Durability durability);

  private:
    std::filesystem::path path_;
    std::optional<FileState> left_; ///< none: nothing was saved yet
};

} // namespace tessaly
