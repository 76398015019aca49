#pragma once

#include "foundation/Geometry.h"
#include "raster/GradientRamp.h"
#include "raster/PixelBuffer.h"

#include <cstdint>

namespace tessaly {

/// The way of a linear gradient: {1, 0} left to right, {0, 1} bottom to top, {1, 1} and {-1, 1} at 45 and 135
/// degrees. Every linear orientation is one of these.
struct GradientDirection {
    int x = 1;
    int y = 0;

    bool operator==(const GradientDirection&) const = default;
};

/// The direction of a linear orientation code; any other code counts as left to right.
GradientDirection gradientDirection(std::int64_t orientation);

/// Fills the pixels whose middles lie in `box` (points). Positions 0 and 1 are on the lines square to the
/// direction through the outermost corners of the box.
void fillLinear(const PixelBuffer& buffer, const Rect& box, GradientDirection direction,
                const GradientRamp& ramp);

/// Fills the whole buffer: position 0 at `center`, position 1 at `radius` points around it.
void fillRadial(const PixelBuffer& buffer, Point center, double radius, const GradientRamp& ramp);

/// Where a gradient lies in a picture, in points.
struct GradientPlace {
    Rect box;     ///< of a linear one
    Point center; ///< of a radial one
    double radius;
};

/// Fills the buffer as the orientation code says.
void fillGradient(const PixelBuffer& buffer, const GradientPlace& place, std::int64_t orientation,
                  const GradientRamp& ramp);

} // namespace tessaly
