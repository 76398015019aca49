#include "foundation/Contrast.h"

#include "foundation/SrgbCurve.h"

#include <algorithm>

namespace tessaly {
namespace {

double luminance(const RGBAComponents& color) {
    return 0.2126 * linearFromSrgb(color.red) + 0.7152 * linearFromSrgb(color.green) +
           0.0722 * linearFromSrgb(color.blue);
}

} // namespace

double contrastBetween(const RGBAComponents& one, const RGBAComponents& other) {
    constexpr double glare = 0.05; // of the room, on every display
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + glare) / (darker + glare);
}

RGBAComponents laidOver(const RGBAComponents& background, const RGBAComponents& color) {
    const auto mix = [&](double under, double over) { return under + (over - under) * color.alpha; };
    return {mix(background.red, color.red), mix(background.green, color.green),
            mix(background.blue, color.blue)};
}

RGBAComponents withContrast(double contrast, const RGBAComponents& color, const RGBAComponents& text,
                            const RGBAComponents& background) {
    constexpr int steps = 32;
    RGBAComponents mixed = color;
    for (int step = 1; step <= steps && contrastBetween(mixed, background) < contrast; ++step) {
        mixed = laidOver(color, {text.red, text.green, text.blue, double(step) / steps});
    }
    return mixed;
}

} // namespace tessaly
