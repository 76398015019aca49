#include "foundation/UserFile.h"

#include "foundation/UserFileError.h"

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr mode_t privateMode = S_IRUSR | S_IWUSR;
constexpr mode_t usualMode = privateMode | S_IRGRP | S_IWGRP | S_IROTH | S_IWOTH;

std::error_code lastError() {
    return {errno, std::generic_category()};
}

// Where the links from the path end, also where there is nothing yet. None: they never do.
std::optional<std::filesystem::path> followed(std::filesystem::path path) {
    constexpr int mostLinks = 40; // as the system has it
    for (int i = 0; i < mostLinks; ++i) {
        std::error_code isNoLink;
        const std::filesystem::path target = std::filesystem::read_symlink(path, isNoLink);
        if (isNoLink) {
            return path;
        }
        path = path.parent_path() / target;
    }
    return std::nullopt;
}

// Why what is there may not be replaced.
std::error_code refusal(const Descriptor& folder, const std::string& name, const struct stat& status) {
    if (S_ISDIR(status.st_mode)) {
        return std::make_error_code(std::errc::is_a_directory);
    }
    if (!S_ISREG(status.st_mode)) {
        return make_error_code(UserFileError::NoOrdinaryFile);
    }
    return ::faccessat(folder.number(), name.c_str(), W_OK, AT_EACCESS) == 0 ? std::error_code{}
                                                                             : lastError();
}

} // namespace

UserFile::UserFile(const std::filesystem::path& path, const std::optional<FileState>& known)
    : error_{open(path, known)} {}

std::error_code UserFile::open(const std::filesystem::path& path, const std::optional<FileState>& known) {
    const std::optional<std::filesystem::path> place = followed(path);
    if (!place) {
        return std::make_error_code(std::errc::too_many_symbolic_link_levels);
    }
    if (!place->has_filename()) {
        return std::make_error_code(path.empty() ? std::errc::no_such_file_or_directory
                                                 : std::errc::is_a_directory);
    }
    const std::filesystem::path folder = place->has_parent_path() ? place->parent_path() : ".";
    folder_ = Descriptor{::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0)};
    if (!folder_) {
        return lastError();
    }
    const std::string name = place->filename().native();
    struct stat status {};
    const bool isThere = ::fstatat(folder_.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0;
    if (!isThere && errno != ENOENT) {
        return lastError();
    }
    if (known && !(isThere && FileState{status} == known)) {
        return make_error_code(UserFileError::ChangedByOthers);
    }
    if (!isThere) {
        file_.emplace(folder_, name, usualMode);
        return {};
    }
    if (const std::error_code refused = refusal(folder_, name, status)) {
        return refused;
    }
    file_.emplace(folder_, name, privateMode);
    return file_->takeAccessOf(status);
}

std::error_code UserFile::write(std::string_view bytes) {
    return error_ ? error_ : file_->write(bytes);
}

std::error_code UserFile::commit(AtomicFile::Durability durability) {
    return error_ ? error_ : file_->commit(durability);
}

std::error_code writeUserFile(const std::filesystem::path& path, std::string_view contents,
                              AtomicFile::Durability durability) {
    UserFile file{path};
    file.write(contents);
    return file.commit(durability);
}

} // namespace tessaly
