#pragma once

#include "model/GlobalData.h"

#include <random>

namespace tessaly {

/// Black to white, left to right, hexadecimal: what a fresh window shows.
inline void resetToDefaultGradient() {
    GlobalData& data = GlobalData::sharedData();
    data = GlobalData{};
    data.setColorMarkerPos({0.0, 1.0});
    data.setColorMarkerColor({Color::black(), Color::white()});
    data.setColorMarkerOpacity({1.0, 1.0});
}

/// Any gradient that the record may hold: no stops at all, unsorted ones, left-over opacities, unknown codes.
inline void setRandomGradient(std::mt19937& random, std::size_t mostStops = 12) {
    std::uniform_real_distribution<double> fraction{0.0, 1.0};
    std::uniform_int_distribution<std::int64_t> code{-1, 5};
    GlobalData& data = GlobalData::sharedData();
    data = GlobalData{};
    data.setOrientationType(code(random));
    data.setColorFormatType(code(random));
    const std::size_t stops = std::uniform_int_distribution<std::size_t>{0, mostStops}(random);
    for (std::size_t i = 0; i < stops; ++i) {
        const bool pattern = fraction(random) < 0.05;
        data.colorMarkerPos().push_back(fraction(random));
        data.colorMarkerOpacity().push_back(fraction(random));
        data.colorMarkerColor().push_back(
            pattern ? Color::withoutRGBForm()
                    : Color::calibratedRGB(fraction(random), fraction(random), fraction(random)));
    }
    if (fraction(random) < 0.2) {
        data.colorMarkerOpacity().push_back(0.5);
    }
}

} // namespace tessaly
