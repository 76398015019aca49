#pragma once

#include "foundation/Descriptor.h"
#include "foundation/FileState.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

namespace tessaly {

/// The folder of the preview's two files: "WebFolder" and the first free number, private to the user. It is
/// held open, and everything is done within it: whoever puts something else under its name gets nothing
/// written or deleted there. Its end takes the two files and the folder with it; a folder that holds anything
/// else, or that somebody has moved away, stays.
class PreviewFolder {
  public:
    static constexpr const char* pageName = "index.html";
    static constexpr const char* stylesheetName = "styles.css";

    /// Makes the folder under `temporaryDirectory`; none when that cannot be done, with the reason in the
    /// log.
    static std::unique_ptr<PreviewFolder> create(const std::filesystem::path& temporaryDirectory);

    PreviewFolder(const PreviewFolder&) = delete;
    PreviewFolder& operator=(const PreviewFolder&) = delete;
    ~PreviewFolder();

    const std::filesystem::path& path() const { return path_; }

    /// Whether the folder is still what is found at its path, with the page in it.
    bool isInPlace() const;

    /// Of one of the two files; none when it is missing.
    std::optional<FileState> stateOf(const std::string& name) const;

    /// Replaces one of the two files as a whole. False: the old file stays, and the log tells why.
    bool write(const std::string& name, std::string_view contents) const;

  private:
    PreviewFolder(std::filesystem::path path, Descriptor folder)
        : path_{std::move(path)}, folder_{std::move(folder)} {}

    bool isAtItsPath() const;

    std::filesystem::path path_;
    Descriptor folder_;
};

} // namespace tessaly
