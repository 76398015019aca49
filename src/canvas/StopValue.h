#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace tessaly {

/// The values of the selected stop that have a text field with a stepper beside it.
enum class StopValue { Red, Green, Blue, Hue, Saturation, Lightness, Position, Opacity };

/// What is shown for a value and which values its stepper can hold.
struct StopValueTraits {
    StopValue value;
    std::string_view name; ///< for people, and for assistive tools
    bool decimal;          ///< judged by the decimal formatter, else by the integer one
    double maximum;        ///< the minimum is 0
    double step;
};

inline constexpr std::array<StopValueTraits, 8> stopValues{{
    {StopValue::Red, "Red", false, 255, 1},
    {StopValue::Green, "Green", false, 255, 1},
    {StopValue::Blue, "Blue", false, 255, 1},
    {StopValue::Hue, "Hue", false, 360, 1},
    {StopValue::Saturation, "Saturation", false, 100, 1},
    {StopValue::Lightness, "Lightness", false, 100, 1},
    {StopValue::Position, "Position", true, 1, 0.01},
    {StopValue::Opacity, "Opacity", true, 1, 0.01},
}};

constexpr const StopValueTraits& traitsOf(StopValue value) {
    return stopValues[static_cast<std::size_t>(value)];
}

} // namespace tessaly
