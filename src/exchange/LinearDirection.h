#pragma once

#include "model/Orientation.h"

#include <cstdint>

namespace tessaly {

/// The way of a linear gradient as an orientation can say it.
struct LinearDirection {
    std::int64_t orientation = orientation::leftToRight;
    bool turned = false; ///< runs against the orientation: its stops have to be turned round
    int degrees = 90;    ///< 0 is upwards, clockwise; a multiple of 45 below 360
    double offset = 0.0; ///< what is left out, -22.5 ... 22.5 degrees

    bool isExact() const;
};

/// The nearest of the eight directions; degrees as CSS counts them, 0 is upwards, clockwise.
LinearDirection nearestDirection(double degrees);

/// The angle of a way over the box, 0 ... 360 degrees, `right` and `up` of any length, not both 0.
double degreesOf(double right, double up);

} // namespace tessaly
