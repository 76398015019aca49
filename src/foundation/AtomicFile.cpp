#include "foundation/AtomicFile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <unistd.h>

namespace tessaly {
namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

std::error_code writeAll(int descriptor, std::string_view contents) {
    while (!contents.empty()) {
        const ssize_t written = ::write(descriptor, contents.data(), contents.size());
        if (written < 0 && errno != EINTR) {
            return lastError();
        }
        contents.remove_prefix(written > 0 ? static_cast<std::size_t>(written) : 0);
    }
    return {};
}

} // namespace

std::error_code writeFileAtomically(const std::filesystem::path& target, std::string_view contents) {
    std::string temporary = target.native() + ".XXXXXX";
    const int descriptor = ::mkstemp(temporary.data());
    if (descriptor < 0) {
        return lastError();
    }
    std::error_code error = writeAll(descriptor, contents);
    if (::close(descriptor) != 0 && !error) {
        error = lastError();
    }
    if (!error && std::rename(temporary.c_str(), target.c_str()) != 0) {
        error = lastError();
    }
    if (error) {
        ::unlink(temporary.c_str());
    }
    return error;
}

} // namespace tessaly
