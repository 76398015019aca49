#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// The orientation codes: in which direction a gradient runs. Any other value may be stored and means none.
namespace tessaly::orientation {

inline constexpr std::int64_t bottomToTop = 0;
inline constexpr std::int64_t leftToRight = 1;
inline constexpr std::int64_t diagonalToTopRight = 2;
inline constexpr std::int64_t diagonalToTopLeft = 3;
inline constexpr std::int64_t radial = 4;

/// What a list offers for a code.
struct Item {
    std::string_view title;
    std::int64_t code;
};

/// In the order of the list. It opens with the default, so the first two are deliberately swapped against the
/// codes.
inline constexpr std::array items{
    Item{"Horizontal", leftToRight},
    Item{"Vertical", bottomToTop},
    Item{"Diagonal \u2197", diagonalToTopRight},
    Item{"Diagonal \u2196", diagonalToTopLeft},
    Item{"Radial", radial},
};

} // namespace tessaly::orientation
