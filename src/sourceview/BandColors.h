#pragma once

#include "foundation/RGBAComponents.h"

/// The band behind the selected lines of a code view.
namespace tessaly::bandColor {

inline constexpr RGBAComponents fill = rgbOfBytes(209, 226, 242, 0.4);
inline constexpr RGBAComponents border = rgbOfBytes(120, 174, 229, 0.4);

/// Share of the band's opacity to draw it with: at full strength the pale fill would take the contrast from
/// the light text of a dark desktop.
constexpr double strength(bool darkBackground) {
    return darkBackground ? 0.35 : 1.0;
}

} // namespace tessaly::bandColor
