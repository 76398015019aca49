#pragma once

#include <cstdint>

/// The colour-notation codes: how stop colours are written. Any other value may be stored and means none.
namespace tessaly::colorFormat {

inline constexpr std::int64_t hexadecimal = 0;
inline constexpr std::int64_t rgb = 1;
inline constexpr std::int64_t rgba = 2;
inline constexpr std::int64_t hsl = 3;
inline constexpr std::int64_t hsla = 4;

/// Whether the notation writes a stop's opacity; the others ignore it, in the code and on the canvas.
constexpr bool carriesOpacity(std::int64_t code) {
    return code == rgba || code == hsla;
}

} // namespace tessaly::colorFormat
