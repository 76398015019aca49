#pragma once

#include "model/GlobalData.h"

#include <random>

namespace tessaly {

/// Black to white, left to right, hexadecimal: what a fresh window shows.
inline void resetToDefaultGradient() {
    GlobalData& data = GlobalData::sharedData() = GlobalData{};
    data.setColorMarkerPos({0.0, 1.0});
    data.setColorMarkerColor({Color::black(), Color::white()});
    data.setColorMarkerOpacity({1.0, 1.0});
}

/// Any gradient that the record may hold: no stops at all, unsorted ones, left-over opacities, unknown codes.
inline void setRandomGradient(std::mt19937& random, std::size_t mostStops = 12) {
    std::uniform_real_distribution<double> fraction{0.0, 1.0};
    std::uniform_int_distribution<std::int64_t> code{-1, 5};
    GlobalData& data = GlobalData::sharedData() = GlobalData{};
    data.setOrientationType(code(random));
    data.setColorFormatType(code(random));
    for (auto stops = std::uniform_int_distribution<std::size_t>{0, mostStops}(random); stops > 0; --stops) {
        data.colorMarkerPos().push_back(fraction(random));
        data.colorMarkerOpacity().push_back(fraction(random));
        const Color color = Color::calibratedRGB(fraction(random), fraction(random), fraction(random));
        data.colorMarkerColor().push_back(fraction(random) < 0.05 ? Color::withoutRGBForm() : color);
    }
    data.colorMarkerOpacity().resize(data.stopCount() + (fraction(random) < 0.2 ? 1 : 0), 0.5);
}

} // namespace tessaly
