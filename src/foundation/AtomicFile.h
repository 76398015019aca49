#pragma once

#include "foundation/Descriptor.h"

#include <string>
#include <string_view>
#include <sys/stat.h>
#include <system_error>

namespace tessaly {

/// A file in the making, which takes the place of another one in one step once it is whole: a reader sees the
/// old contents or the new, never a part. What is not committed leaves the old file as it was, and nothing
/// beside it. After a failure everything else fails in the same way.
class AtomicFile {
  public:
    /// Whether a file is on the disk before it gets its name, which takes its time; if not, a power cut may
    /// lose it.
    enum class Durability { Forced, Eventual };

    /// For the file `name` of an open folder, which must outlive the object. A link of that name is replaced,
    /// not followed. `mode` is cut by the process's mask.
    AtomicFile(const Descriptor& folder, std::string name, mode_t mode);
    AtomicFile(const AtomicFile&) = delete;
    AtomicFile& operator=(const AtomicFile&) = delete;
    ~AtomicFile();

    /// Gives it the owner, if that is allowed, and the permissions of the file that it is to replace.
    std::error_code takeAccessOf(const struct stat& replaced);

    std::error_code write(std::string_view bytes);

    /// Puts it in place; nothing can be written any more.
    std::error_code commit(Durability durability);

  private:
    std::error_code takeAccessList();
    std::error_code failed();

    const Descriptor& folder_;
    std::string name_;
    std::string temporaryName_;
    Descriptor file_;
    std::error_code error_;
};

/// Replaces the file `name` of an open folder as a whole; it is private to the user, and not forced to the
/// disk.
std::error_code writeFileAtomically(const Descriptor& folder, const std::string& name,
                                    std::string_view contents);

} // namespace tessaly
