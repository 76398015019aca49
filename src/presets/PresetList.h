#pragma once

#include "presets/Preset.h"

#include <cstdint>
#include <vector>

namespace tessaly {

/// What the store asks of the list of presets that it reads into and saves.
class PresetList {
  public:
    virtual ~PresetList() = default;

    /// In the order shown and saved.
    virtual const std::vector<Preset>& presetGradient() const = 0;

    /// Empties the list.
    virtual std::vector<Preset> takePresets() = 0;

    /// The `index` to give the next preset.
    virtual void setGradientIndex(std::int64_t index) = 0;

    /// Appends a stored preset with the next `index`.
    virtual void addGradientIntoPreset(Gradient gradient) = 0;
};

} // namespace tessaly
