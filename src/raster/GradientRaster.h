#pragma once

#include "foundation/Geometry.h"
#include "raster/GradientRamp.h"
#include "raster/PixelBuffer.h"

#include <cstdint>

namespace tessaly {

/// Where a gradient lies in a picture, in points.
struct GradientPlace {
    Rect box;     ///< of a linear one: positions 0 and 1 are on the lines through its outermost corners
    Point center; ///< of a radial one: where position 0 is
    Size radii;   ///< where position 1 is, across and up

    /// As a browser lays the generated code in a box: a radial one is the ellipse to its corners.
    static GradientPlace inBox(const Rect& box);
};

/// What the pixels of a buffer are.
enum class PixelForm {
    Premultiplied, ///< 0xAARRGGBB, as PixelBuffer says
    StraightBytes, ///< not premultiplied: red, green, blue and alpha as they follow each other in memory
};

/// Fills the pixels whose middles lie in the box; of a radial gradient, the whole buffer. A code that is no
/// orientation counts as left to right.
void fillGradient(const PixelBuffer& buffer, const GradientPlace& place, std::int64_t orientation,
                  const GradientRamp& ramp, PixelForm form = PixelForm::Premultiplied);

} // namespace tessaly
