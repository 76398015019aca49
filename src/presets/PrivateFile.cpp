#include "presets/PrivateFile.h"

#include "foundation/Descriptor.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr mode_t folderMode = S_IRWXU;
constexpr mode_t fileMode = S_IRUSR | S_IWUSR;

} // namespace

bool createPrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    return ::mkdir(folder.c_str(), folderMode) == 0 || std::filesystem::is_directory(folder, error);
}

void createPrivateFile(const std::filesystem::path& file) {
    const Descriptor created{::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode)};
}

void makePrivate(const std::filesystem::path& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) == 0 && !S_ISLNK(status.st_mode)) {
        ::chmod(path.c_str(), status.st_mode & S_IRWXU);
    }
}

bool syncToDisk(const std::filesystem::path& path) {
    const Descriptor descriptor{::open(path.c_str(), O_RDONLY | O_CLOEXEC)};
    return descriptor && ::fsync(descriptor.number()) == 0;
}

std::filesystem::path withSuffix(const std::filesystem::path& file, const char* suffix) {
    return file.native() + suffix;
}

} // namespace tessaly
