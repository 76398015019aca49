#pragma once

#include "foundation/Geometry.h"

namespace tessaly {

/// How a linear gradient lies in a square box, as CSS would say it.
struct GradientLine {
    double angle = 90.0; ///< degrees, 0 ... 360, 0 upwards, clockwise
    double start = 0.0;  ///< its positions 0 and 1 as positions between the corners that the angle points to
    double end = 1.0;
};

/// Of a box whose sides are 1, y downwards: the gradient's position in the middle of the box and by how much
/// it grows along the sides, not by 0 along both.
GradientLine gradientLine(double middle, Point growth);

} // namespace tessaly
