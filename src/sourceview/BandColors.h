#pragma once

#include "model/Color.h"

/// The band behind the selected lines of a code view.
namespace tessaly::bandColor {

inline constexpr RGBAComponents fill{209.0F / 255.0F, 226.0F / 255.0F, 242.0F / 255.0F, 0.4};
inline constexpr RGBAComponents border{120.0F / 255.0F, 174.0F / 255.0F, 229.0F / 255.0F, 0.4};

/// Share of the band's opacity to draw it with: at full strength the pale fill would take the contrast from
/// the light text of a dark desktop.
constexpr double strength(bool darkBackground) {
    return darkBackground ? 0.35 : 1.0;
}

} // namespace tessaly::bandColor
