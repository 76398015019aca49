#pragma once

#include "model/Color.h"

#include <cstdint>

namespace tessaly {

/// Integer channels, nominally 0 ... 255; conversions may leave that range on either side.
struct RGBValue {
    std::int32_t red = 0;
    std::int32_t green = 0;
    std::int32_t blue = 0;

    bool operator==(const RGBValue&) const = default;
};

/// Hue in degrees 0 ... 360, saturation and lightness in percent 0 ... 100.
struct HSLValue {
    double hue = 0.0;
    double saturation = 0.0;
    double lightness = 0.0;

    bool operator==(const HSLValue&) const = default;
};

/// Channels cut toward zero, so that a full one is 255; zeros for a colour without RGB form.
RGBValue _rgbValueOfAnNSColor(const Color& color);

/// Hue neither rounded nor brought into 0 ... 360: on the magenta side it is negative. Zeros for a colour
/// without RGB form.
HSLValue _hslValueOfAnNSColor(const Color& color);

} // namespace tessaly
