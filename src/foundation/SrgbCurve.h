#pragma once

#include <cmath>

namespace tessaly {

/// The light that a component of sRGB stands for, both 0.0 ... 1.0.
inline double linearFromSrgb(double component) {
    constexpr double straightEnd = 0.04045; // below it the curve is a line
    return component <= straightEnd ? component / 12.92 : std::pow((component + 0.055) / 1.055, 2.4);
}

} // namespace tessaly
