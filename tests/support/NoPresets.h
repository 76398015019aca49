#pragma once

#include "canvas/GradientEditor.h"

namespace tessaly {

/// For an editor without a preset store.
inline const PresetSteps noPresets{[] {}, [] {}, [] {}};

} // namespace tessaly
