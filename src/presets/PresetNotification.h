#pragma once

#include "foundation/Notification.h"
#include "presets/Preset.h"

#include <cstdint>
#include <optional>

/// The two notifications that a thumbnail posts.
namespace tessaly::presetNotification {

inline constexpr const char* gradientIndexChanged = "PresetGradientIndexChanged";
inline constexpr const char* deleteGradient = "DeletePresetGradient";

/// The thumbnail was clicked: carries its gradient.
Notification makeGradientIndexChanged(const Preset& preset, const void* thumbnail);

/// "Delete" was chosen: carries the preset's index.
Notification makeDeleteGradient(std::int64_t index, const void* thumbnail);

/// The gradient that a click announced; null when it is missing.
const Gradient* gradientOf(const Notification& notification);

/// The index to delete; none when it is missing.
std::optional<std::int64_t> indexOf(const Notification& notification);

} // namespace tessaly::presetNotification
