#pragma once

#include <cstdint>
#include <sys/stat.h>

namespace tessaly {

/// Tells whether a file is still the same one and untouched.
struct FileState {
    explicit FileState(const struct stat& status)
        : device{status.st_dev},
          inode{status.st_ino},
          size{status.st_size},
          seconds{status.st_mtim.tv_sec},
          nanoseconds{status.st_mtim.tv_nsec} {}

    bool operator==(const FileState&) const = default;

    std::uint64_t device;
    std::uint64_t inode;
    std::int64_t size;
    std::int64_t seconds; ///< of the last change
    std::int64_t nanoseconds;
};

} // namespace tessaly
