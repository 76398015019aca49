#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

namespace tessaly {

/// The folder of the preview's two files: "WebFolder" and the first free number, private to the user. Its end
/// takes the two files and the folder with it; a folder that holds anything else stays.
class PreviewFolder {
  public:
    static constexpr std::string_view pageName = "index.html";
    static constexpr std::string_view stylesheetName = "styles.css";

    /// Makes the folder under `temporaryDirectory`; none when that cannot be done, with the reason in the
    /// log.
    static std::optional<PreviewFolder> create(const std::filesystem::path& temporaryDirectory);

    PreviewFolder(PreviewFolder&& other) noexcept;
    PreviewFolder& operator=(PreviewFolder&& other) noexcept;
    PreviewFolder(const PreviewFolder&) = delete;
    PreviewFolder& operator=(const PreviewFolder&) = delete;
    ~PreviewFolder();

    const std::filesystem::path& path() const { return path_; }

    /// Replaces one of the two files as a whole. On failure the old file stays and the log tells.
    void write(std::string_view name, std::string_view contents) const;

  private:
    explicit PreviewFolder(std::filesystem::path path) : path_{std::move(path)} {}

    std::filesystem::path path_; ///< empty once moved from
};

} // namespace tessaly
