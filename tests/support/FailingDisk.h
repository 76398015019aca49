#pragma once

#include <cerrno>
#include <csignal>
#include <sqlite3.h>
#include <unistd.h>

namespace tessaly {

/// Strikes at one of the system calls by which SQLite changes files: ends the process there, or makes that
/// one call fail, or lets no file grow from then on.
class FailingDisk {
  public:
    enum class Failure { Crash, OneError, NoSpace };

    /// `call` counts from 1.
    FailingDisk(int call, Failure failure) {
        failure_ = failure;
        callsLeft_ = call;
        install(true);
    }
    FailingDisk(const FailingDisk&) = delete;
    FailingDisk& operator=(const FailingDisk&) = delete;
    ~FailingDisk() { install(false); }

    bool hasStruck() const { return callsLeft_ <= 0; }

  private:
    static bool strikes(bool needsSpace) {
        --callsLeft_;
        if (callsLeft_ > 0 || (callsLeft_ < 0 && failure_ == Failure::OneError)) {
            return false;
        }
        if (failure_ == Failure::Crash) {
            std::raise(SIGKILL);
        }
        errno = failure_ == Failure::NoSpace ? ENOSPC : EIO;
        return needsSpace || failure_ != Failure::NoSpace;
    }
    static ssize_t write(int file, const void* data, std::size_t size) {
        return strikes(true) ? -1 : ::write(file, data, size);
    }
    static ssize_t pwrite(int file, const void* data, std::size_t size, off_t at) {
        const bool growsFile = ::lseek(file, 0, SEEK_END) < at + static_cast<off_t>(size);
        return strikes(growsFile) ? -1 : ::pwrite(file, data, size, at);
    }
    static int ftruncate(int file, off_t size) { return strikes(false) ? -1 : ::ftruncate(file, size); }
    static int unlink(const char* path) { return strikes(false) ? -1 : ::unlink(path); }

    static void install(bool hooked) {
        const auto set = [hooked](const char* name, auto* call) {
            sqlite3_vfs* const vfs = sqlite3_vfs_find(nullptr);
            vfs->xSetSystemCall(vfs, name, hooked ? reinterpret_cast<sqlite3_syscall_ptr>(call) : nullptr);
        };
        set("write", write);
        set("pwrite", pwrite);
        set("pwrite64", pwrite);
        set("ftruncate", ftruncate);
        set("unlink", unlink);
    }

    static inline Failure failure_ = Failure::Crash;
    static inline int callsLeft_ = 0;
};

} // namespace tessaly
