#pragma once

#include "foundation/Geometry.h"
#include "raster/GradientRamp.h"
#include "raster/PixelBuffer.h"

#include <cstdint>

namespace tessaly {

/// Where a gradient lies in a picture, in points.
struct GradientPlace {
    Rect box;      ///< of a linear one: positions 0 and 1 are on the lines through its outermost corners
    Point center;  ///< of a radial one: where position 0 is
    double radius; ///< where position 1 is
};

/// Fills the pixels whose middles lie in the box; of a radial gradient, the whole buffer. A code that is no
/// orientation counts as left to right.
void fillGradient(const PixelBuffer& buffer, const GradientPlace& place, std::int64_t orientation,
                  const GradientRamp& ramp);

} // namespace tessaly
