#pragma once

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace tessaly {

/// Makes the disk fail this process, in whoever opens, writes, cuts, syncs, renames, links or removes a file.
class FailingDisk {
  public:
    struct Failure {
        int error;    ///< none: the process is killed at the call
        bool lasting; ///< from the call on, all of its kind fail; else that call alone
    };

    /// For the rest of the process. `call` counts from 1, and from here.
    static void failAt(int call, Failure failure) {
        failure_ = failure;
        callsLeft_ = call;
    }

    static bool hasStruck() { return callsLeft_ <= 0; }

    /// Counts a call. `takesRoom`: a full disk refuses it.
    static bool strikes(bool takesRoom) {
        --callsLeft_;
        if (callsLeft_ == 0 && failure_.error == 0) {
            std::raise(SIGKILL);
        }
        errno = failure_.error;
        return failure_.lasting ? callsLeft_ <= 0 && takesRoom : callsLeft_ == 0;
    }

  private:
    static inline Failure failure_{0, false};
    static inline int callsLeft_ = 1'000'000;
};

/// Stand in for the system's own under their names, for SQLite and the standard library too.
namespace failingCalls {

[[gnu::used]] inline int rename(const char* from, const char* to) noexcept asm("rename");
inline int rename(const char* from, const char* to) noexcept {
    return FailingDisk::strikes(false) ? -1 : ::renameat(AT_FDCWD, from, AT_FDCWD, to);
}

[[gnu::used]] inline int link(const char* from, const char* to) noexcept asm("link");
inline int link(const char* from, const char* to) noexcept {
    return FailingDisk::strikes(false) ? -1 : ::linkat(AT_FDCWD, from, AT_FDCWD, to, 0);
}

[[gnu::used]] inline int unlink(const char* path) noexcept asm("unlink");
inline int unlink(const char* path) noexcept {
    return FailingDisk::strikes(false) ? -1 : ::unlinkat(AT_FDCWD, path, 0);
}

[[gnu::used]] inline int fsync(int file) asm("fsync");
inline int fsync(int file) {
    return FailingDisk::strikes(false) ? -1 : static_cast<int>(::syscall(SYS_fsync, file));
}

[[gnu::used]] inline int truncate(int file, off_t size) noexcept asm("ftruncate64");
inline int truncate(int file, off_t size) noexcept {
    return FailingDisk::strikes(false) ? -1 : static_cast<int>(::syscall(SYS_ftruncate, file, size));
}

[[gnu::used]] inline ssize_t write(int file, const void* data, std::size_t size, off_t at) asm("pwrite64");
inline ssize_t write(int file, const void* data, std::size_t size, off_t at) {
    return FailingDisk::strikes(true) ? -1 : ::syscall(SYS_pwrite64, file, data, size, at);
}

[[gnu::used]] inline int open(const char* path, int flags, mode_t mode) asm("open");
inline int open(const char* path, int flags, mode_t mode) {
    return FailingDisk::strikes(false) ? -1 : ::openat(AT_FDCWD, path, flags, mode);
}

[[gnu::used]] inline int open64(const char* path, int flags, mode_t mode) asm("open64");
inline int open64(const char* path, int flags, mode_t mode) {
    return failingCalls::open(path, flags, mode);
}

} // namespace failingCalls

} // namespace tessaly
