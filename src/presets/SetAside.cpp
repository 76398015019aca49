#include "presets/SetAside.h"

#include "foundation/DiagnosticLog.h"
#include "presets/PrivateFile.h"

#include <ctime>
#include <string>

namespace tessaly {
namespace {

std::string localTimeText() {
    const std::time_t now = std::time(nullptr);
    std::tm local{};
    ::localtime_r(&now, &local);
    std::array<char, sizeof "yyyyyymmdd-hhmmss"> text{};
    return {text.data(), std::strftime(text.data(), text.size(), "%Y%m%d-%H%M%S", &local)};
}

// A free name beside the file.
std::filesystem::path datedName(const std::filesystem::path& file) {
    const std::string stem = file.stem().native() + "-set-aside-" + localTimeText();
    std::filesystem::path name = file.parent_path() / (stem + file.extension().native());
    std::error_code error;
    for (int number = 2; std::filesystem::exists(name, error); ++number) {
        name.replace_filename(stem + '-' + std::to_string(number) + file.extension().native());
    }
    return name;
}

std::error_code moveCompanions(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code error;
    for (const char* const suffix : companionSuffixes) {
        std::filesystem::rename(withSuffix(from, suffix), withSuffix(to, suffix), error);
        if (error && error != std::errc::no_such_file_or_directory) {
            return error;
        }
    }
    return {};
}

// The file keeps its old name until its companions have moved, where the file system knows two names for one
// file: a log without its database is of no use. What has moved moves back when something cannot.
std::error_code move(const std::filesystem::path& file, const std::filesystem::path& dated) {
    std::error_code noLink;
    std::filesystem::create_hard_link(file, dated, noLink);
    std::error_code failure = moveCompanions(file, dated);
    if (!failure && noLink) {
        std::filesystem::rename(file, dated, failure);
    } else if (!failure) {
        std::filesystem::remove(file, failure);
    }
    if (failure == std::errc::no_such_file_or_directory) {
        failure.clear();
    }
    if (failure) {
        moveCompanions(dated, file);
        std::error_code isMissing;
        if (std::filesystem::equivalent(file, dated, isMissing)) {
            std::filesystem::remove(dated, isMissing);
        }
    }
    return failure;
}

} // namespace

bool setAside(const std::filesystem::path& file) {
    const std::filesystem::path dated = datedName(file);
    if (const std::error_code error = move(file, dated)) {
        DiagnosticLog::write("Presets not set aside: " + error.message());
        return false;
    }
    syncToDisk(file.parent_path());
    std::error_code error;
    if (std::filesystem::exists(dated, error)) {
        DiagnosticLog::write("Presets set aside: " + dated.native());
    }
    return true;
}

} // namespace tessaly
