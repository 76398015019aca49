#include "presets/PrivateCopy.h"

#include "foundation/FileState.h"
#include "presets/PrivateFile.h"
#include "presets/SetAside.h"

#include <array>
#include <cstdlib>
#include <string>

namespace tessaly {
namespace {

namespace fs = std::filesystem;

// The file and its companions: none for what is not there.
using States = std::array<std::optional<FileState>, companionSuffixes.size() + 1>;

fs::path part(const fs::path& database, std::size_t index) {
    return index == 0 ? database : withSuffix(database, companionSuffixes[index - 1]);
}

States statesOf(const fs::path& database) {
    States states;
    for (std::size_t i = 0; i < states.size(); ++i) {
        struct stat status {};
        if (::stat(part(database, i).c_str(), &status) == 0) {
            states[i].emplace(status);
        }
    }
    return states;
}

} // namespace

std::optional<PrivateCopy> PrivateCopy::of(const fs::path& database, std::uintmax_t mostBytes) {
    constexpr int attempts = 3; // a program that saves is done before long
    std::error_code error;
    const fs::path file = fs::canonical(database, error);
    std::string folder = (fs::temp_directory_path(error) / "tessaly-XXXXXX").native();
    if (file.empty() || ::mkdtemp(folder.data()) == nullptr) {
        return std::nullopt;
    }
    PrivateCopy copy{folder};
    for (int attempt = 0; attempt < attempts; ++attempt) {
        const States before = statesOf(file);
        if (!copy.take(file, mostBytes)) {
            break;
        }
        if (statesOf(file) == before) {
            return copy;
        }
    }
    return std::nullopt;
}

bool PrivateCopy::take(const fs::path& database, std::uintmax_t mostBytes) const {
    for (std::size_t i = 0; i < States{}.size(); ++i) {
        const fs::path from = part(database, i);
        const fs::path to = part(file(), i);
        std::error_code error;
        fs::remove(to, error);
        const bool isMissing = !fs::exists(from, error);
        if (isMissing && i > 0) {
            continue;
        }
        // Another kind of file, such as a pipe, might never end.
        if (!fs::is_regular_file(from, error) || fs::file_size(from, error) > mostBytes ||
            !fs::copy_file(from, to, error)) {
            return false;
        }
        fs::permissions(to, fs::perms::owner_read | fs::perms::owner_write, error);
    }
    return true;
}

PrivateCopy::~PrivateCopy() {
    if (!folder_.empty()) {
        std::error_code error;
        fs::remove_all(folder_, error);
    }
}

} // namespace tessaly
