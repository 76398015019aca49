#pragma once

#include <cstdint>

/// The orientation codes: in which direction a gradient runs. Any other value may be stored and means none.
namespace tessaly::orientation {

inline constexpr std::int64_t bottomToTop = 0;
inline constexpr std::int64_t leftToRight = 1;
inline constexpr std::int64_t diagonalToTopRight = 2;
inline constexpr std::int64_t diagonalToTopLeft = 3;
inline constexpr std::int64_t radial = 4;

} // namespace tessaly::orientation
