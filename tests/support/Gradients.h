#pragma once

#include "model/GlobalData.h"

#include <algorithm>
#include <cmath>
#include <random>

namespace tessaly {

/// Black to white, left to right, hexadecimal: what a fresh window shows.
inline GlobalData defaultRecord() {
    return {Gradient{{{0.0, Color::black()}, {1.0, Color::white()}}}};
}

/// Unsorted, some stops at one position, some unseen or opaque, colors of bytes and between them.
inline Gradient randomGradient(std::mt19937& random) {
    std::uniform_real_distribution<double> fraction{0.0, 1.0};
    const auto channel = [&] {
        const double value = std::clamp(fraction(random) * 1.2 - 0.1, 0.0, 1.0);
        return fraction(random) < 0.5 ? static_cast<float>(std::lround(value * 255)) / 255.0F : value;
    };
    std::vector<ColorStop> stops(std::uniform_int_distribution<std::size_t>{1, 50}(random));
    for (ColorStop& stop : stops) {
        const bool repeats = &stop != &stops.front() && fraction(random) < 0.2;
        const double opacity = fraction(random) * (fraction(random) < 0.2 ? 1e-6 : 1.2);
        stop = {repeats ? (&stop)[-1].position : fraction(random),
                Color::calibratedRGB(channel(), channel(), channel()), std::min(opacity, 1.0)};
    }
    return Gradient{stops, std::uniform_int_distribution<std::int64_t>{0, orientation::radial}(random)};
}

/// Any record that there may be: no stops at all, unsorted ones, left-over opacities, unknown codes.
inline GlobalData randomRecord(std::mt19937& random, std::size_t mostStops = 12) {
    std::uniform_real_distribution<double> fraction{0.0, 1.0};
    std::uniform_int_distribution<std::int64_t> code{-1, 5};
    std::vector<ColorStop> stops(std::uniform_int_distribution<std::size_t>{0, mostStops}(random));
    for (ColorStop& stop : stops) {
        stop = {fraction(random), Color::calibratedRGB(fraction(random), fraction(random), fraction(random)),
                fraction(random)};
        if (fraction(random) < 0.05) {
            stop.color = Color::withoutRGBForm();
        }
    }
    const std::int64_t notation = code(random);
    GlobalData record{Gradient{std::move(stops), code(random)}, notation};
    if (!record.gradient.stops().empty() && fraction(random) < 0.2) {
        record.gradient.remove(0);
    }
    return record;
}

} // namespace tessaly
