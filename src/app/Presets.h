#pragma once

#include "canvas/GradientEditor.h"
#include "presets/PresetGallery.h"
#include "presets/PresetStore.h"

#include <filesystem>

namespace tessaly {

class PresetPanel;

/// The user's presets: puts store, gallery and canvas together.
class Presets {
  public:
    /// Panel and editor must outlive the object. The database lies below `applicationSupport`.
    Presets(PresetPanel& panel, GradientEditor& editor, const std::filesystem::path& applicationSupport);
    Presets(const Presets&) = delete;
    Presets& operator=(const Presets&) = delete;

    /// Closes the database.
    ~Presets();

    /// What the set-up of the editor is to call.
    PresetSteps steps();

  private:
    PresetPanel& panel_;
    PresetGallery gallery_;
    PresetStore store_;
};

} // namespace tessaly
