#pragma once

#include "foundation/Notification.h"
#include "presets/Preset.h"

#include <cstdint>
#include <optional>

/// The two notifications that a thumbnail posts.
namespace tessaly::presetNotification {

inline constexpr const char* gradientIndexChanged = "PresetGradientIndexChanged";
inline constexpr const char* deleteGradient = "DeletePresetGradient";

/// The thumbnail was clicked: carries its three arrays and its orientation code.
Notification makeGradientIndexChanged(const Preset& preset, const void* thumbnail);

/// "Delete" was chosen: carries the preset's index.
Notification makeDeleteGradient(std::int64_t index, const void* thumbnail);

/// The preset, without an index, that a click announced; none when a value is missing.
std::optional<Preset> presetOf(const Notification& notification);

/// The index to delete; none when it is missing.
std::optional<std::int64_t> indexOf(const Notification& notification);

} // namespace tessaly::presetNotification
