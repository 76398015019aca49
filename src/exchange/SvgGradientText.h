#pragma once

#include "foundation/Geometry.h"
#include "model/Gradient.h"
#include "raster/GradientRamp.h"

#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// A gradient as an SVG element, painted as CSS paints it in a box of that size at the origin, in pixels;
/// without one, in any square. Reading it gives the same numbers: `stop-color` has the nearest bytes,
/// `data-color` the channels where they lie between, and stops of the class `between` only help the mixing.
std::string svgGradientText(std::string_view id, const Gradient& gradient, GradientRamp::Opacity opacity,
                            const std::optional<Size>& box);

} // namespace tessaly
