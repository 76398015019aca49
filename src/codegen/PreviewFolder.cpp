#include "codegen/PreviewFolder.h"

#include "foundation/AtomicFile.h"
#include "foundation/DiagnosticLog.h"

#include <cerrno>
#include <string>
#include <sys/stat.h>
#include <utility>

namespace tessaly {

std::optional<PreviewFolder> PreviewFolder::create(const std::filesystem::path& temporaryDirectory) {
    if (temporaryDirectory.is_relative()) {
        DiagnosticLog::write("No preview folder: no absolute path: " + temporaryDirectory.native());
        return std::nullopt;
    }
    // Making a folder fails where anything of that name exists, which is the test and the claim in one step.
    for (int number = 0;; ++number) {
        std::filesystem::path folder = temporaryDirectory / ("WebFolder" + std::to_string(number));
        if (::mkdir(folder.c_str(), S_IRWXU) == 0) {
            return PreviewFolder{std::move(folder)};
        }
        if (errno != EEXIST) {
            const std::error_code error{errno, std::generic_category()};
            DiagnosticLog::write("No preview folder: " + folder.native() + ": " + error.message());
            return std::nullopt;
        }
    }
}

PreviewFolder::PreviewFolder(PreviewFolder&& other) noexcept : path_{std::exchange(other.path_, {})} {}

PreviewFolder& PreviewFolder::operator=(PreviewFolder&& other) noexcept {
    std::swap(path_, other.path_); // the folder held before ends with `other`
    return *this;
}

PreviewFolder::~PreviewFolder() {
    if (path_.empty()) {
        return;
    }
    std::error_code ignored; // what stays is the user's, or the system's to clear away
    std::filesystem::remove(path_ / pageName, ignored);
    std::filesystem::remove(path_ / stylesheetName, ignored);
    std::filesystem::remove(path_, ignored);
}

void PreviewFolder::write(std::string_view name, std::string_view contents) const {
    if (const std::error_code error = writeFileAtomically(path_ / name, contents)) {
        DiagnosticLog::write("Preview file not written: " + (path_ / name).native() + ": " + error.message());
    }
}

} // namespace tessaly
