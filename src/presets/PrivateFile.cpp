#include "presets/PrivateFile.h"

#include <array>
#include <ctime>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <unistd.h>

namespace tessaly {
namespace {

constexpr mode_t folderMode = S_IRWXU;
constexpr mode_t fileMode = S_IRUSR | S_IWUSR;

std::string localTimeText() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, sizeof "yyyyyymmdd-hhmmss"> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local)};
}

} // namespace

bool createPrivateFolder(const std::filesystem::path& folder) {
    std::error_code error;
    std::filesystem::create_directories(folder.parent_path(), error);
    return ::mkdir(folder.c_str(), folderMode) == 0 || std::filesystem::is_directory(folder, error);
}

void createPrivateFile(const std::filesystem::path& file) {
    const int descriptor = ::open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, fileMode);
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

void makePrivate(const std::filesystem::path& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) == 0) {
        ::chmod(path.c_str(), status.st_mode & S_IRWXU);
    }
}

bool syncToDisk(const std::filesystem::path& path) {
    const int descriptor = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0) {
        return false;
    }
    const bool synced = ::fsync(descriptor) == 0;
    ::close(descriptor);
    return synced;
}

std::filesystem::path withSuffix(const std::filesystem::path& file, const char* suffix) {
    return file.native() + suffix;
}

std::filesystem::path datedName(const std::filesystem::path& file) {
    const std::string stem = file.stem().native() + "-set-aside-" + localTimeText();
    std::filesystem::path name = file.parent_path() / (stem + file.extension().native());
    std::error_code error;
    for (int number = 2; std::filesystem::exists(name, error); ++number) {
        name.replace_filename(stem + '-' + std::to_string(number) + file.extension().native());
    }
    return name;
}

} // namespace tessaly
