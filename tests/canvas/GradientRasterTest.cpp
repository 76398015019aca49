#include "canvas/GradientRaster.h"
#include "model/Orientation.h"

#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <random>

namespace tessaly {
namespace {

constexpr RGBAComponents lightGrey{0.9, 0.9, 0.9, 1.0};

// The plain reading of what a browser does, channel by channel: alpha, red, green, blue.
std::array<double, 4> expectedAt(const std::vector<GradientStop>& stops, const RGBAComponents& backdrop,
                                 double t) {
    std::vector<double> positions;
    for (const GradientStop& stop : stops) {
        positions.push_back(positions.empty() ? stop.position : std::max(stop.position, positions.back()));
    }
    std::size_t next = 0;
    while (next < stops.size() && positions[next] <= t) {
        ++next;
    }
    const std::size_t from = next == 0 ? 0 : next - 1;
    const std::size_t to = std::min(next, stops.size() - 1);
    const double weight = from == to ? 0 : (t - positions[from]) / (positions[to] - positions[from]);
    const auto mixed = [&](auto component) {
        return (1 - weight) * component(*stops[from].color.calibratedRGB()) +
               weight * component(*stops[to].color.calibratedRGB());
    };
    const double alpha = mixed([](const RGBAComponents& c) { return c.alpha; });
    const double under = (1 - alpha) * backdrop.alpha;
    return {255 * (alpha + under),
            255 * (mixed([](const RGBAComponents& c) { return c.red * c.alpha; }) + under * backdrop.red),
            255 * (mixed([](const RGBAComponents& c) { return c.green * c.alpha; }) + under * backdrop.green),
            255 * (mixed([](const RGBAComponents& c) { return c.blue * c.alpha; }) + under * backdrop.blue)};
}

// The largest distance of any channel from the exact value; a right rounding leaves half a level.
double worstError(const PixelBuffer& buffer, const std::function<double(double, double)>& positionAt,
                  const std::vector<GradientStop>& stops, const RGBAComponents& backdrop) {
    double worst = 0;
    for (int row = 0; row < buffer.height; ++row) {
        for (int column = 0; column < buffer.width; ++column) {
            const double t = positionAt(buffer.x(column), buffer.y(row));
            const auto expected = expectedAt(stops, backdrop, t);
            const std::uint32_t pixel = buffer.row(row)[static_cast<std::size_t>(column)];
            for (std::size_t i = 0; i < expected.size(); ++i) {
                const auto actual = static_cast<double>(pixel >> (24U - 8U * i) & 0xFFU);
                worst = std::max(worst, std::abs(actual - expected[i]));
            }
        }
    }
    return worst;
}

std::vector<GradientStop> randomStops(std::mt19937& random, std::size_t count) {
    std::uniform_real_distribution<double> fraction{0.0, 1.0};
    std::vector<GradientStop> stops;
    for (std::size_t i = 0; i < count; ++i) {
        stops.push_back({fraction(random), Color::calibratedRGB(fraction(random), fraction(random),
                                                                fraction(random), fraction(random))});
    }
    if (count > 2) {
        stops[2].position = stops[1].position; // a hard edge, and the rest is unsorted
    }
    return stops;
}

TEST(GradientRaster, isExactToTheRoundingAtEveryPixel) {
    std::mt19937 random{3};
    constexpr double width = 60;
    constexpr double height = 41;
    for (const double scale : {1.0, 1.5, 2.0}) {
        const int columns = static_cast<int>(std::ceil(width * scale));
        const int rows = static_cast<int>(std::ceil(height * scale));
        std::vector<std::uint32_t> pixels(static_cast<std::size_t>(columns * rows));
        const PixelBuffer buffer{pixels, columns, rows, scale, height};
        for (const std::size_t count : {1U, 2U, 3U, 20U}) {
            const auto stops = randomStops(random, count);
            const GradientRamp ramp{stops, lightGrey};
            const struct {
                std::int64_t orientation;
                double dx, dy;
            } linear[] = {{0, 0, 1}, {1, 1, 0}, {2, 1, 1}, {3, -1, 1}, {8, 1, 0}};
            for (const auto& row : linear) {
                const double dx = row.dx;
                const double dy = row.dy;
                // The box is larger than the picture, so that every pixel is painted.
                const Rect box{-1, -2, width + 5, height + 4};
                fillLinear(buffer, box, gradientDirection(row.orientation), ramp);
                const auto positionAt = [&](double x, double y) {
                    const double length = std::abs(dx) * box.width + std::abs(dy) * box.height;
                    return (dx * (x - box.center().x) + dy * (y - box.center().y)) / length + 0.5;
                };
                EXPECT_LT(worstError(buffer, positionAt, stops, lightGrey), 0.5 + 1e-6) << row.orientation;
            }
            fillRadial(buffer, {30, 10}, 20, ramp);
            const auto distance = [](double x, double y) { return std::hypot(x - 30, y - 10) / 20; };
            EXPECT_LT(worstError(buffer, distance, stops, lightGrey), 0.5 + 1e-6);
        }
    }
}

TEST(GradientRaster, fillsOnlyTheBoxAndLeavesTransparencyOverNoBackdrop) {
    std::vector<std::uint32_t> pixels(8 * 6, 7U);
    const PixelBuffer buffer{pixels, 8, 6, 1.0, 6};
    const std::vector<GradientStop> stops{{0.5, Color::calibratedRGB(1, 0, 0, 0.5)}};
    fillLinear(buffer, {2, 1, 4, 3}, {1, 0}, GradientRamp{stops});
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 8; ++column) {
            const bool inside = column >= 2 && column < 6 && row >= 2 && row < 5;
            EXPECT_EQ(buffer.row(row)[static_cast<std::size_t>(column)], inside ? 0x80800000U : 7U);
        }
    }
}

TEST(GradientRamp, takesAnyPosition) {
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<GradientStop> stops{{-infinity, Color::black()},
                                          {std::nan(""), Color::white()},
                                          {1e300, Color::withoutRGBForm()},
                                          {infinity, Color::white()}};
    const GradientRamp ramp{stops, lightGrey};
    for (const double t : {-1e9, -1.0, 0.0, 0.5, 1.0, 1e9}) {
        EXPECT_EQ(ramp.pixelAt(t) >> 24U, 0xFFU) << t;
    }
}

} // namespace
} // namespace tessaly
