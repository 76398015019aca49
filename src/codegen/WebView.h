#pragma once

#include <filesystem>

namespace tessaly {

/// What the preview asks of a web view. Loading is asynchronous.
class WebView {
  public:
    virtual ~WebView() = default;

    virtual void loadFile(const std::filesystem::path& page) = 0;
    virtual void reload() = 0;
};

} // namespace tessaly
