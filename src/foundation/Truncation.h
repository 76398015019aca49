#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace tessaly {

/// A double cut toward zero to a whole number. What does not fit becomes the nearest bound, and not-a-number
/// 0, so that a value from outside never makes the conversion undefined.
inline std::int64_t truncated(double value) {
    constexpr double bound = 9223372036854775808.0; // 2^63, the first whole number that no longer fits
    if (value >= bound) {
        return std::numeric_limits<std::int64_t>::max();
    }
    if (value <= -bound) {
        return std::numeric_limits<std::int64_t>::min();
    }
    return std::isnan(value) ? 0 : static_cast<std::int64_t>(value);
}

} // namespace tessaly
