#pragma once

#include "model/Color.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>

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
};

/// Channels rounded, so that a full one is deliberately 256; zeros for a colour without RGB form.
RGBValue rgbValueOfAnNSColor(const Color& color);

/// Channels cut toward zero, so that a full one is 255; zeros for a colour without RGB form.
RGBValue bytesOf(const Color& color);

/// "#rrggbb" in lower case; none for a colour without RGB form.
std::optional<std::string> hexadecimalText(const Color& color);

/// Hue as a whole number 0 ... 360; zeros for a colour without RGB form.
HSLValue hslValueOfAnNSColor(const Color& color);

/// Where the hue falls on the way to RGB, in turns: once for each channel. They may lie outside 0 ... 1.
std::array<double, 3> huePositions(double hue);

/// Channels as computed, never clamped: hue 120 gives a red of -1.
RGBValue hslToRGB(const HSLValue& hsl);

} // namespace tessaly
