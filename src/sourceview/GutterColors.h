#pragma once

#include "foundation/RGBAComponents.h"

/// The gutter's own colours, the same on a light and on a dark desktop.
namespace tessaly::gutterColor {

inline constexpr RGBAComponents text{0.42, 0.42, 0.42, 1.0};
inline constexpr RGBAComponents alternateText{1.0, 1.0, 1.0, 1.0};

} // namespace tessaly::gutterColor
