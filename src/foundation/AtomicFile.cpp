#include "foundation/AtomicFile.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/xattr.h>
#include <unistd.h>
#include <utility>

namespace tessaly {

AtomicFile::AtomicFile(const Descriptor& folder, std::string name, mode_t mode)
    : folder_{folder}, name_{std::move(name)} {
    // Beside the file, under a name that nobody uses.
    for (int number = 0; !file_ && !error_; ++number) {
        std::string free = name_ + '.' + std::to_string(number);
        file_ = Descriptor{::openat(folder_.number(), free.c_str(),
                                    O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode)};
        if (file_) {
            temporaryName_ = std::move(free);
        } else if (errno != EEXIST) {
            failed();
        }
    }
}

AtomicFile::~AtomicFile() {
    if (!temporaryName_.empty()) {
        ::unlinkat(folder_.number(), temporaryName_.c_str(), 0);
    }
}

std::error_code AtomicFile::takeAccessOf(const struct stat& replaced) {
    if (error_) {
        return error_;
    }
    // Only root can give a file away. Whoever else replaces a file becomes its owner, and may leave it to a
    // group of theirs; another group gets no more than everybody has.
    constexpr uid_t unchanged = -1U;
    const bool keepsGroup = ::fchown(file_.number(), unchanged, replaced.st_gid) == 0;
    if ((!keepsGroup && errno != EPERM) ||
        (::fchown(file_.number(), replaced.st_uid, unchanged) != 0 && errno != EPERM)) {
        return failed();
    }
    constexpr unsigned fromOthersToGroup = 3;
    mode_t mode = replaced.st_mode & (S_IRWXU | S_IRWXG | S_IRWXO);
    if (!keepsGroup) {
        mode = (mode & ~static_cast<mode_t>(S_IRWXG)) | (mode & S_IRWXO) << fromOthersToGroup;
    }
    return ::fchmod(file_.number(), mode) == 0 ? takeAccessList() : failed();
}

// Of users and groups beside the owner and the group, if the file has one.
std::error_code AtomicFile::takeAccessList() {
    constexpr const char* attribute = "system.posix_acl_access";
    const std::string replaced = "/proc/self/fd/" + std::to_string(folder_.number()) + '/' + name_;
    std::array<char, 4096> list{};
    const ssize_t size = ::lgetxattr(replaced.c_str(), attribute, list.data(), list.size());
    if (size < 0) {
        return errno == ERANGE ? failed() : error_;
    }
    return ::fsetxattr(file_.number(), attribute, list.data(), static_cast<std::size_t>(size), 0) == 0
               ? error_
               : failed();
}

std::error_code AtomicFile::write(std::string_view bytes) {
    while (!bytes.empty() && !error_) {
        const ssize_t written = ::write(file_.number(), bytes.data(), bytes.size());
        if (written < 0 && errno != EINTR) {
            failed();
        }
        bytes.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return error_;
}

std::error_code AtomicFile::commit(Durability durability) {
    if (error_) {
        return error_;
    }
    if (durability == Durability::Forced && ::fsync(file_.number()) != 0) {
        return failed();
    }
    if (!file_.close() ||
        ::renameat(folder_.number(), temporaryName_.c_str(), folder_.number(), name_.c_str()) != 0) {
        return failed();
    }
    temporaryName_.clear();
    return error_;
}

std::error_code AtomicFile::failed() {
    error_ = {errno, std::generic_category()};
    return error_;
}

std::error_code writeFileAtomically(const Descriptor& folder, const std::string& name,
                                    std::string_view contents) {
    AtomicFile file{folder, name, S_IRUSR | S_IWUSR};
    file.write(contents);
    return file.commit(AtomicFile::Durability::Eventual);
}

} // namespace tessaly
