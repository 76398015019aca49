#include "raster/GradientRaster.h"

#include "model/Orientation.h"
#include "raster/DiscRaster.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

using Stops = std::vector<ColorStop>;
using Opacity = GradientRamp::Opacity;
using PositionAt = std::function<std::optional<double>(Point)>;
using Channels = std::array<double, 4>; // alpha, red, green, blue

constexpr RGBAComponents lightGrey{0.9, 0.9, 0.9, 1.0};
constexpr RGBAComponents transparent{0.0, 0.0, 0.0, 0.0};

Channels premultiplied(const ColorStop& stop, const RGBAComponents& backdrop) {
    const auto [red, green, blue, alpha] =
        stop.color.withAlpha(stop.opacity).calibratedRGB().value_or(transparent);
    const double under = (1 - alpha) * backdrop.alpha;
    return {255 * (alpha + under), 255 * (alpha * red + under * backdrop.red),
            255 * (alpha * green + under * backdrop.green), 255 * (alpha * blue + under * backdrop.blue)};
}

// The plain reading of what a browser does.
Channels expectedAt(const Stops& stops, const RGBAComponents& backdrop, double t) {
    double start = stops.front().position;
    Channels from = premultiplied(stops.front(), backdrop);
    for (const ColorStop& stop : stops) {
        const double end = std::max(start, stop.position);
        const Channels to = premultiplied(stop, backdrop);
        if (t < end) {
            const double weight = t > start ? (t - start) / (end - start) : 0; // none before the first stop
            for (std::size_t i = 0; i < from.size(); ++i) {
                from[i] += weight * (to[i] - from[i]);
            }
            return from;
        }
        start = end;
        from = to;
    }
    return from;
}

// Every channel of every pixel must be the exact value, rounded; where there is no position the pixel is 7.
void expectExact(const PixelBuffer& buffer, const Stops& stops, const RGBAComponents& backdrop,
                 const PositionAt& positionAt, PixelForm form = PixelForm::Premultiplied) {
    double worst = 0;
    for (int i = 0; i < buffer.width * buffer.height; ++i) {
        const auto t = positionAt({buffer.x(i % buffer.width), buffer.y(i / buffer.width)});
        Channels expected = t ? expectedAt(stops, backdrop, *t) : Channels{0, 0, 0, 7};
        std::uint32_t pixel = buffer.pixels[static_cast<std::size_t>(i)];
        if (form == PixelForm::StraightBytes) {
            const auto [red, green, blue, alpha] = std::bit_cast<std::array<std::uint8_t, 4>>(pixel);
            pixel =
                std::uint32_t{alpha} << 24U | std::uint32_t{red} << 16U | std::uint32_t{green} << 8U | blue;
            const double share = alpha > 0 ? 255 / expected[0] : 0;
            expected = {expected[0], expected[1] * share, expected[2] * share, expected[3] * share};
        }
        for (std::size_t channel = 0; channel < expected.size(); ++channel) {
            const auto actual = pixel >> (24 - 8 * channel) & 0xFFU;
            worst = std::max(worst, std::abs(actual - expected[channel]));
        }
    }
    EXPECT_LT(worst, 0.5 + 1e-6) << stops.size() << " stops at " << buffer.scale;
}

void fillAndCompare(const PixelBuffer& buffer, const Stops& stops, const RGBAComponents& backdrop) {
    const GradientRamp ramp{stops, Opacity::Drawn, backdrop};
    const Rect box{7.3, -2, 60, 30.1}; // within the picture on two sides, and beyond it on two
    for (const auto [code, dx, dy] : {std::array{0, 0, 1}, {1, 1, 0}, {2, 1, 1}, {3, -1, 1}, {8, 1, 0}}) {
        SCOPED_TRACE(code);
        const auto way = [x = dx, y = dy](Point p) { return x * p.x + y * p.y; };
        const double length = way({dx * box.width, dy * box.height});
        std::ranges::fill(buffer.pixels, 7U);
        fillGradient(buffer, {box, {}, {}}, code, ramp);
        expectExact(buffer, stops, backdrop, [&](Point p) {
            const double t = (way(p) - way(box.center())) / length + 0.5;
            return box.contains(p) ? std::optional{t} : std::nullopt;
        });
    }
    for (const Point center : {Point{30, 10}, Point{29.7, 20.2}}) { // the second is symmetric to no pixel
        for (const PixelForm form : {PixelForm::Premultiplied, PixelForm::StraightBytes}) {
            fillGradient(buffer, {box, center, {20, 14}}, orientation::radial, ramp, form);
            const auto way = [&](Point p) {
                return std::hypot((p.x - center.x) / 20, (p.y - center.y) / 14);
            };
            expectExact(buffer, stops, backdrop, way, form);
        }
    }
}

TEST(GradientRaster, isExactToTheRoundingAtEveryPixel) {
    std::mt19937 random{3};
    const auto fraction = [&] { return std::uniform_real_distribution<double>{0.0, 1.0}(random); };
    for (const double scale : {1.0, 1.25, 1.5, 2.0}) {
        const auto columns = static_cast<int>(std::ceil(60 * scale));
        const auto rows = static_cast<int>(std::ceil(41 * scale));
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(columns * rows));
        for (const std::size_t count : {1U, 2U, 4U, 20U}) {
            Stops stops(count, {fraction(), Color::withoutRGBForm()}); // hard edges
            for (std::size_t i = 0; i < count; i += 2) {
                stops[i] = {fraction(), Color::calibratedRGB(fraction(), fraction(), fraction()), fraction()};
            }
            fillAndCompare({pixels, columns, rows, scale, 41}, stops, count == 4 ? transparent : lightGrey);
        }
    }
}

TEST(GradientRamp, takesAnyPosition) {
    const Stops stops{{-HUGE_VAL, Color::black(), 0.0},
                      {std::nan(""), Color::white(), 0.0},
                      {HUGE_VAL, Color::white(), 0.0}};
    for (const double t : {-1e9, 0.0, 1.0, 1e9}) {
        EXPECT_EQ((GradientRamp{stops, Opacity::Ignored}.pixelAt(t)), t < 0 ? 0xFF000000U : 0xFFFFFFFFU) << t;
    }
}

TEST(DiscRaster, coversEveryPixelAsFarAsItReachesIntoIt) {
    const RGBAComponents color{0.2, 0.4, 1.0, 1.0};
    const Channels over = premultiplied({0, Color::calibratedRGB(0.2, 0.4, 1.0), 1}, lightGrey);
    constexpr std::uint32_t under = 0xFF804020;
    std::vector<std::uint32_t> pixels(24 * 17);
    for (const double scale : {1.0, 1.5}) {
        const PixelBuffer buffer{pixels, 24, 17, scale, 20};
        for (const auto& [center, radius] : {std::pair{Point{8, 13}, 5.0},
                                             {Point{8.3, 13.8}, 4.6},
                                             {Point{0, 20}, 6},
                                             {Point{16, 9}, 7},
                                             {Point{7.2, 14.1}, 0.3}}) {
            std::ranges::fill(pixels, under);
            fillDisc(buffer, center, radius, color);
            for (int i = 0; i < 24 * 17; ++i) {
                const Point middle{buffer.x(i % 24), buffer.y(i / 24)};
                const double beyond = std::hypot(middle.x - center.x, middle.y - center.y) - radius;
                const double share = std::clamp(0.5 - beyond * scale, 0.0, 1.0);
                for (std::size_t channel = 0; channel < over.size(); ++channel) {
                    const auto byteOf = [&](std::uint32_t pixel) {
                        return pixel >> (24 - 8 * channel) & 0xFFU;
                    };
                    const double expected = over[channel] * share + byteOf(under) * (1 - share);
                    ASSERT_NEAR(byteOf(pixels[static_cast<std::size_t>(i)]), expected, 2)
                        << i << ", " << radius;
                }
            }
        }
    }
}

} // namespace
} // namespace tessaly
