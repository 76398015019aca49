#pragma once

#include "model/Orientation.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace tessaly {

/// An item of the orientation list and the code it stands for.
struct OrientationItem {
    std::string_view title;
    std::int64_t code;
};

/// In the order of the list. It opens with the default, so the first two are deliberately swapped against the
/// codes.
inline constexpr std::array<OrientationItem, 5> orientationItems{{
    {"Horizontal", orientation::leftToRight},
    {"Vertical", orientation::bottomToTop},
    {"Diagonal \u2197", orientation::diagonalToTopRight},
    {"Diagonal \u2196", orientation::diagonalToTopLeft},
    {"Radial", orientation::radial},
}};

} // namespace tessaly
