#pragma once

#include "app/MainWindow.h"
#include "app/Presets.h"
#include "app/Tessaly.h"

namespace tessaly {

/// The main window with all that works behind it, set up and ready to be shown.
class WiredWindow {
  public:
    /// The preview's folder is made in `temporaryDirectory`, the presets' in `applicationSupport`.
    WiredWindow(std::filesystem::path temporaryDirectory, const std::filesystem::path& applicationSupport);

    MainWindow& mainWindow() { return mainWindow_; }

  private:
    MainWindow mainWindow_;
    Tessaly tessaly_;
    Presets presets_;
};

} // namespace tessaly
