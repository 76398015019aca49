#pragma once

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sqlite3.h>
#include <unistd.h>

namespace tessaly {

/// Makes the disk fail this process, by the calls with which SQLite changes files and by every rename.
class FailingDisk {
  public:
    /// At a call: the process ends there, or it fails. From a call on: no file grows, or none can be renamed.
    enum Failure { Crash, OneError, NoSpace, NoRename };

    /// For the rest of the process. `call` counts from 1, and from here.
    static void failAt(int call, Failure failure) {
        failure_ = failure;
        callsLeft_ = call;
        const auto hook = [vfs = sqlite3_vfs_find(nullptr)](const char* name, auto* function) {
            vfs->xSetSystemCall(vfs, name, reinterpret_cast<sqlite3_syscall_ptr>(function));
        };
        hook("pwrite", pwrite);
        hook("pwrite64", pwrite); // which of the two there is depends on how SQLite was built
        hook("ftruncate", ftruncate);
        hook("unlink", unlink);
    }

    static bool hasStruck() { return callsLeft_ <= 0; }

    /// Counts a call. `lasting` is the failure that makes all of its kind fail.
    static bool strikes(Failure lasting) {
        --callsLeft_;
        if (callsLeft_ == 0 && failure_ == Crash) {
            std::raise(SIGKILL);
        }
        errno = failure_ == NoSpace ? ENOSPC : EIO;
        return failure_ == OneError ? callsLeft_ == 0 : failure_ == lasting && callsLeft_ <= 0;
    }

  private:
    static ssize_t pwrite(int file, const void* data, std::size_t size, off_t at) {
        const bool growsFile = ::lseek(file, 0, SEEK_END) < at + static_cast<off_t>(size);
        return strikes(growsFile ? NoSpace : OneError) ? -1 : ::pwrite(file, data, size, at);
    }
    static int ftruncate(int file, off_t size) { return strikes(OneError) ? -1 : ::ftruncate(file, size); }
    static int unlink(const char* path) { return strikes(OneError) ? -1 : ::unlink(path); }

    static inline Failure failure_ = OneError;
    static inline int callsLeft_ = 1'000'000;
};

/// Stands in for the system's own under its name, for the standard library too.
inline int failingRename(const char* from, const char* to) noexcept asm("rename");
[[gnu::used]] inline int failingRename(const char* from, const char* to) noexcept {
    return FailingDisk::strikes(FailingDisk::NoRename) ? -1 : ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}

} // namespace tessaly
