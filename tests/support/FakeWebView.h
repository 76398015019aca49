#pragma once

#include "codegen/WebView.h"

namespace tessaly {

/// A preview without a browser engine.
struct FakeWebView : WebView {
    void loadFile(const std::filesystem::path& page) override { loaded = page; }
    void reload() override { ++reloads; }

    std::filesystem::path loaded;
    int reloads = 0;
};

} // namespace tessaly
