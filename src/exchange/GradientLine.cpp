#include "exchange/GradientLine.h"

#include "exchange/LinearDirection.h"

#include <cmath>

namespace tessaly {

GradientLine gradientLine(double middle, Point growth) {
    constexpr double sameWithin = 1e-4; // by far less than can be seen
    GradientLine line{degreesOf(growth.x, -growth.y)};
    const double fromCornerToCorner = std::abs(growth.x) + std::abs(growth.y);
    if (std::abs(fromCornerToCorner - 1.0) > sameWithin || std::abs(middle - 0.5) > sameWithin) {
        line.start = 0.5 - middle / fromCornerToCorner;
        line.end = 0.5 + (1.0 - middle) / fromCornerToCorner;
    }
    return line;
}

} // namespace tessaly
