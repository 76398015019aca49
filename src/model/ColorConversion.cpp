#include "model/ColorConversion.h"

#include "foundation/NumberText.h"
#include "foundation/Truncation.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace tessaly {
namespace {

// Just below 256: cut, it spreads 0.0 ... 1.0 evenly over 0 ... 255.
constexpr double channelScale = 255.99998474121094;

// Deliberately not 1/3 and 2/3: they shift some channels by one, and saved colours rely on it.
constexpr double third = 0.333;
constexpr double twoThirds = 0.666;

std::int32_t channelFrom(double wholeNumber) {
    using Limits = std::numeric_limits<std::int32_t>;
    return static_cast<std::int32_t>(
        std::clamp<std::int64_t>(truncated(wholeNumber), Limits::min(), Limits::max()));
}

template <typename ToInteger>
RGBValue scaledChannels(const Color& color, ToInteger toInteger) {
    const auto& rgb = color.calibratedRGB();
    if (!rgb) {
        return {};
    }
    const auto channel = [&](double component) { return channelFrom(toInteger(component * channelScale)); };
    return {channel(rgb->red), channel(rgb->green), channel(rgb->blue)};
}

// One wrap only: what is still out of range after it stays so.
double wrappedOnce(double huePosition) {
    if (huePosition < 0) {
        huePosition += 1;
    }
    return huePosition > 1 ? huePosition - 1 : huePosition;
}

double valueAt(double t, double p, double q) {
    if (6 * t < 1) {
        return p + (q - p) * 6 * t;
    }
    if (2 * t < 1) {
        return q;
    }
    if (3 * t < 2) {
        return p + (q - p) * (twoThirds - t) * 6;
    }
    return p;
}

} // namespace

RGBValue rgbValueOfAnNSColor(const Color& color) {
    // Rounding is deliberate: a full channel reads 256, the value that the rgb notations have always written.
    return scaledChannels(color, [](double value) { return std::round(value); });
}

RGBValue bytesOf(const Color& color) {
    return scaledChannels(color, [](double value) { return std::trunc(value); });
}

HSLValue hslValueOfAnNSColor(const Color& color) {
    const auto& rgb = color.calibratedRGB();
    if (!rgb) {
        return {};
    }
    const auto [red, green, blue, alpha] = *rgb;
    const double max = std::max({red, green, blue});
    const double min = std::min({red, green, blue});
    const double lightness = (max + min) / 2;
    const double difference = max - min;
    if (difference == 0) {
        return {0, 0, lightness * 100};
    }
    const double saturation = lightness < 0.5 ? difference / (max + min) : difference / (2 - max - min);
    double hue = 0;
    if (red == max) {
        hue = (green - blue) / difference * 60;
    } else if (green == max) {
        hue = ((blue - red) / difference + 2) * 60;
    } else {
        hue = ((red - green) / difference + 4) * 60;
    }
    hue = std::round(hue) + 0.0; // no negative zero, which would be written as such
    return {hue < 0 ? hue + 360 : hue, saturation * 100, lightness * 100};
}

std::array<double, 3> huePositions(double hue) {
    const double turns = hue / 360;
    return {wrappedOnce(turns + third), wrappedOnce(turns), wrappedOnce(turns - third)};
}

RGBValue hslToRGB(const HSLValue& hsl) {
    const double lightness = hsl.lightness / 100;
    if (hsl.saturation == 0) {
        // Greys are cut, not rounded as colours are: deliberate, a half grey stays 127.
        const auto grey = channelFrom(lightness * 255);
        return {grey, grey, grey};
    }
    const double saturation = hsl.saturation / 100;
    const double q =
        lightness < 0.5 ? lightness * (1 + saturation) : lightness + saturation - lightness * saturation;
    const double p = 2 * lightness - q;
    const auto channel = [&](double position) {
        return channelFrom(std::round(valueAt(position, p, q) * 255));
    };
    const auto [red, green, blue] = huePositions(hsl.hue);
    return {channel(red), channel(green), channel(blue)};
}

std::optional<std::string> hexadecimalText(const Color& color) {
    if (!color.calibratedRGB()) {
        return std::nullopt;
    }
    const auto [red, green, blue] = bytesOf(color);
    std::string text = "#";
    for (const std::int32_t channel : {red, green, blue}) {
        text += hexByteText(static_cast<std::uint32_t>(channel));
    }
    return text;
}

} // namespace tessaly
