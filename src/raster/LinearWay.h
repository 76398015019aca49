#pragma once

#include "model/Orientation.h"

namespace tessaly {

/// Where a linear gradient runs to: across, up or at 45 degrees.
struct LinearWay {
    int right; ///< -1, 0 or 1
    int up;    ///< 0 or 1
};

/// A code that is none of a linear gradient counts as left to right.
constexpr LinearWay linearWay(std::int64_t orientation) {
    switch (orientation) {
    case orientation::bottomToTop:
        return {0, 1};
    case orientation::diagonalToTopRight:
        return {1, 1};
    case orientation::diagonalToTopLeft:
        return {-1, 1};
    default:
        return {1, 0};
    }
}

} // namespace tessaly
