#include "foundation/AtomicFile.h"

#include "foundation/Descriptor.h"

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

// Beside the file, under a name that nobody uses.
Descriptor createBeside(const Descriptor& folder, const std::string& name, std::string& created) {
    for (int number = 0;; ++number) {
        created = name + '.' + std::to_string(number);
        Descriptor file{::openat(folder.number(), created.c_str(),
                                 O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, S_IRUSR | S_IWUSR)};
        if (file || errno != EEXIST) {
            return file;
        }
    }
}

std::error_code writeAll(const Descriptor& file, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = ::write(file.number(), contents.data(), contents.size());
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        contents.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return {};
}

} // namespace

std::error_code writeFileAtomically(const Descriptor& folder, const std::string& name,
                                    std::string_view contents) {
    std::string temporary;
    Descriptor file = createBeside(folder, name, temporary);
    if (!file) {
        return lastError();
    }
    std::error_code error = writeAll(file, contents);
    if (!file.close() && !error) {
        error = lastError();
    }
    if (!error && ::renameat(folder.number(), temporary.c_str(), folder.number(), name.c_str()) != 0) {
        error = lastError();
    }
    if (error) {
        ::unlinkat(folder.number(), temporary.c_str(), 0);
    }
    return error;
}

} // namespace tessaly
