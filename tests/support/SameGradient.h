#pragma once

#include "model/ColorFormat.h"
#include "model/Gradient.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

/// Whether a gradient that was written as CSS in a notation and read again is the same but for the digits
/// that were cut: of positions one decimal of a percentage, of opacities one digit, of channels what the
/// notation has.
inline bool isSameButForDigits(const Gradient& read, const Gradient& written, std::int64_t notation) {
    constexpr double cutPosition = 0.001 + 1e-6; // single precision
    const double channelDigits = notation >= colorFormat::hsl           ? 0.01
                                 : notation == colorFormat::hexadecimal ? 1.01 / 255
                                                                        : 1.51 / 255;
    const auto isSame = [&](const ColorStop& stop, const ColorStop& original) {
        const double opacity = colorFormat::carriesOpacity(notation) ? original.opacity : 1.0;
        const RGBAComponents a = stop.color.calibratedRGB().value();
        const RGBAComponents b = original.color.calibratedRGB().value();
        return std::abs(stop.opacity - opacity) <= std::min(opacity * 0.5, 0.05) + 1e-9 && // 0.149 is 0.1
               stop.position <= original.position + 1e-6 && stop.position > original.position - cutPosition &&
               std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)}) <=
                   channelDigits;
    };
    return read.orientation() == written.orientation() &&
           std::ranges::equal(read.stops(), written.stops(), isSame);
}

} // namespace tessaly
