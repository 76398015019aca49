#pragma once

#include <cstdint>
#include <string>

namespace tessaly {

/// One of the eight directions: an orientation as it is or, where the program has only the opposite one, with
/// its stops the other way round.
struct SvgDirection {
    std::int64_t orientation;
    bool isTurned;
    std::string note; ///< what is not as it was; empty: nothing that could be seen
};

/// For an angle of CSS, 0 ... 360 degrees, 0 upwards, clockwise.
SvgDirection nearestSvgDirection(double angle);

} // namespace tessaly
