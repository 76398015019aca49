#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

/// The colour notations: how stop colours are written. A notation's code is its place in the table; any other
/// value may be stored and means none.
namespace tessaly::colorFormat {

struct Notation {
    std::string_view title;
    bool carriesOpacity; ///< the others ignore a stop's opacity, in the code and on the canvas
};

inline constexpr std::array notations{
    Notation{"Hexadecimal", false}, Notation{"RGB", false}, Notation{"RGBA", true},
    Notation{"HSL", false},         Notation{"HSLA", true},
};

inline constexpr std::int64_t hexadecimal = 0;
inline constexpr std::int64_t rgb = 1;
inline constexpr std::int64_t rgba = 2;
inline constexpr std::int64_t hsl = 3;
inline constexpr std::int64_t hsla = 4;

constexpr bool isKnown(std::int64_t code) {
    return code >= 0 && code < std::ssize(notations);
}

constexpr bool carriesOpacity(std::int64_t code) {
    return isKnown(code) && notations[static_cast<std::size_t>(code)].carriesOpacity;
}

/// The notation that writes colours alike, and opacity too.
constexpr std::int64_t carryingOpacity(std::int64_t code) {
    if (carriesOpacity(code) || !isKnown(code)) {
        return code;
    }
    return code == hsl ? hsla : rgba;
}

} // namespace tessaly::colorFormat
