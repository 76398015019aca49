#include "raster/DiscRaster.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly {
namespace {

constexpr std::uint32_t whole = 256; // of a pixel

std::uint32_t pixelOf(const RGBAComponents& color) {
    std::uint32_t pixel = 0xFF;
    for (const double channel : {color.red, color.green, color.blue}) {
        pixel = pixel << 8U | static_cast<std::uint32_t>(std::lround(channel * 255));
    }
    return pixel;
}

// `share` of one over the rest of another, two channels at a time.
std::uint32_t mixed(std::uint32_t over, std::uint32_t under, std::uint32_t share) {
    constexpr std::uint32_t everySecond = 0x00FF00FF;
    const auto mix = [share](std::uint32_t a, std::uint32_t b) { return a * share + b * (whole - share); };
    return (mix(over & everySecond, under & everySecond) >> 8U & everySecond) |
           (mix(over >> 8U & everySecond, under >> 8U & everySecond) & ~everySecond);
}

// Indexes into a run of pixels: the first whose middle is not left of a place.
int firstFrom(double place, int size) {
    return static_cast<int>(std::clamp(std::ceil(place), 0.0, static_cast<double>(size)));
}

// Half of a disc's chord at that distance from the middle; 0 beyond the disc.
double halfChord(double radius, double distance) {
    return std::sqrt(std::max(radius * radius - distance * distance, 0.0));
}

} // namespace

void fillDisc(const PixelBuffer& buffer, Point center, double radius, const RGBAComponents& color) {
    const std::uint32_t fill = pixelOf(color);
    const double x = center.x * buffer.scale - 0.5; // pixels from here, y downwards
    const double y = (buffer.top - center.y) * buffer.scale - 0.5;
    const double outer =
        radius * buffer.scale + 0.5;               // where a pixel's middle lies when the disc just misses it
    const double inner = std::max(outer - 1, 0.0); // and when it just fills it
    for (int row = firstFrom(y - outer, buffer.height); row < firstFrom(y + outer, buffer.height); ++row) {
        const double down = row - y;
        const std::span<std::uint32_t> pixels = buffer.row(row);
        const auto column = [&](double place) { return firstFrom(x + place, buffer.width); };
        const auto smooth = [&](int from, int to) {
            for (int i = from; i < to; ++i) {
                const double share = outer - std::sqrt((i - x) * (i - x) + down * down);
                std::uint32_t& pixel = pixels[static_cast<std::size_t>(i)];
                pixel = mixed(fill, pixel, static_cast<std::uint32_t>(std::clamp(share, 0.0, 1.0) * whole));
            }
        };
        const int coreBegin = column(-halfChord(inner, down));
        const int coreEnd = column(halfChord(inner, down));
        smooth(column(-halfChord(outer, down)), coreBegin);
        std::fill(pixels.begin() + coreBegin, pixels.begin() + coreEnd, fill);
        smooth(coreEnd, column(halfChord(outer, down)));
    }
}

} // namespace tessaly
