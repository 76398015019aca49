#include "codegen/PreviewFolder.h"

#include "foundation/AtomicFile.h"
#include "foundation/DiagnosticLog.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

void logFailure(const std::string& what, const std::filesystem::path& path, std::error_code error) {
    DiagnosticLog::write(what + ": " + path.native() + ": " + error.message());
}

} // namespace

std::unique_ptr<PreviewFolder> PreviewFolder::create(const std::filesystem::path& temporaryDirectory) {
    if (temporaryDirectory.is_relative()) {
        DiagnosticLog::write("No preview folder: no absolute path: " + temporaryDirectory.native());
        return nullptr;
    }
    // Making a folder fails where anything of that name exists, which is the test and the claim in one step.
    for (int number = 0;; ++number) {
        std::filesystem::path place = temporaryDirectory / ("WebFolder" + std::to_string(number));
        if (::mkdir(place.c_str(), S_IRWXU) == 0) {
            Descriptor folder{::open(place.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC)};
            if (folder) {
                return std::unique_ptr<PreviewFolder>{new PreviewFolder{std::move(place), std::move(folder)}};
            }
            const int error = errno;
            ::rmdir(place.c_str());
            errno = error;
        }
        if (errno != EEXIST) {
            logFailure("No preview folder", place, {errno, std::generic_category()});
            return nullptr;
        }
    }
}

PreviewFolder::~PreviewFolder() {
    if (isAtItsPath()) {
        // What cannot be removed is the user's, or the system's to clear away.
        ::unlinkat(folder_.number(), pageName, 0);
        ::unlinkat(folder_.number(), stylesheetName, 0);
        ::rmdir(path_.c_str());
    }
}

bool PreviewFolder::isInPlace() const {
    return isAtItsPath() && ::faccessat(folder_.number(), pageName, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
}

bool PreviewFolder::isAtItsPath() const {
    struct stat held {};
    struct stat found {};
    return ::fstat(folder_.number(), &held) == 0 && ::lstat(path_.c_str(), &found) == 0 &&
           held.st_dev == found.st_dev && held.st_ino == found.st_ino;
}

std::optional<FileState> PreviewFolder::stateOf(const std::string& name) const {
    struct stat status {};
    const bool found = ::fstatat(folder_.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    return found ? std::optional{FileState{status}} : std::nullopt;
}

bool PreviewFolder::write(const std::string& name, std::string_view contents) const {
    const std::error_code error = writeFileAtomically(folder_, name, contents);
    if (error) {
        logFailure("Preview file not written", path_ / name, error);
    }
    return !error;
}

} // namespace tessaly
