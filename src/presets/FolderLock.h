#pragma once

#include <filesystem>

namespace tessaly {

/// Keeps other copies of the program from saving into a folder for as long as it lives. The system ends it
/// with the process, so a crash leaves nothing behind. On a file system without such locks it keeps nobody
/// out.
class FolderLock {
  public:
    explicit FolderLock(const std::filesystem::path& folder);
    FolderLock(const FolderLock&) = delete;
    FolderLock& operator=(const FolderLock&) = delete;
    ~FolderLock();

    /// Another one holds the lock; this one does not.
    bool isHeldByOther() const { return heldByOther_; }

  private:
    int descriptor_;
    bool heldByOther_;
};

} // namespace tessaly
