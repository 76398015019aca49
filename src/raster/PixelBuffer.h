#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace tessaly {

/// A picture in memory that somebody else owns: 0xAARRGGBB, premultiplied, row by row from the top without
/// gaps, and where its pixels lie in points. Points have their origin at the bottom left and y upwards.
struct PixelBuffer {
    std::span<std::uint32_t> pixels;
    int width = 0;    ///< in pixels
    int height = 0;   ///< in pixels
    double scale = 1; ///< device pixel ratio: pixels per point
    double top = 0;   ///< y of the upper edge in points

    /// Middle of a pixel, in points.
    double x(int column) const { return (column + 0.5) / scale; }
    double y(int row) const { return top - (row + 0.5) / scale; }

    std::span<std::uint32_t> row(int index) const {
        return pixels.subspan(static_cast<std::size_t>(index) * static_cast<std::size_t>(width),
                              static_cast<std::size_t>(width));
    }
};

} // namespace tessaly
