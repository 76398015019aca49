#include "raster/GradientRaster.h"

#include "raster/LinearWay.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <numbers>
#include <span>
#include <vector>

namespace tessaly {
namespace {

// Indexes of the pixels whose middles lie between two edges, given in pixels.
struct PixelSpan {
    int begin;
    int end;

    PixelSpan(double from, double to, int size)
        : begin{std::clamp(static_cast<int>(std::ceil(from - 0.5)), 0, size)},
          end{std::clamp(static_cast<int>(std::ceil(to - 0.5)), begin, size)} {}

    int size() const { return end - begin; }
};

// A row at a multiple of 45 degrees is the row above it, moved by `shift` pixels: one ramp serves all of
// them.
void fillShifted(const PixelBuffer& buffer, PixelSpan columns, PixelSpan rows, int shift, auto pixelAt) {
    const int travel = std::abs(shift) * std::max(rows.size() - 1, 0);
    const int first = columns.begin - (shift < 0 ? travel : 0);
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(columns.size() + travel));
    for (std::size_t i = 0; i < pixels.size(); ++i) {
        pixels[i] = pixelAt(first + static_cast<int>(i), rows.begin);
    }
    for (int row = rows.begin; row < rows.end; ++row) {
        const int from = columns.begin + shift * (row - rows.begin) - first;
        std::copy_n(pixels.begin() + from, columns.size(), buffer.row(row).begin() + columns.begin);
    }
}

// One side of a row of a radial gradient, from the middle outwards, so that the position only grows: pixel i
// is at x + i * step from the middle.
void fillOutwards(std::span<std::uint32_t> pixels, double x, double step, double y, const GradientRamp& ramp,
                  auto pixelOf) {
    const double ySquared = y * y;
    const auto size = static_cast<double>(pixels.size());
    std::size_t i = 0;
    for (const GradientRamp::Segment& segment : ramp.segments()) {
        const double reach = std::sqrt(std::max(segment.end * segment.end - ySquared, 0.0));
        const auto last = static_cast<std::size_t>(std::clamp(std::ceil((reach - x) / step), 0.0, size));
        for (; i < last; ++i) {
            const double here = x + static_cast<double>(i) * step;
            pixels[i] = pixelOf(segment, std::sqrt(here * here + ySquared));
        }
    }
}

void fillLinear(const PixelBuffer& buffer, const Rect& box, LinearWay way, const GradientRamp& ramp,
                auto pixelOf) {
    const PixelSpan columns{box.x * buffer.scale, box.maxX() * buffer.scale, buffer.width};
    const PixelSpan rows{(buffer.top - box.maxY()) * buffer.scale, (buffer.top - box.y) * buffer.scale,
                         buffer.height};
    const double length = std::abs(way.right) * box.width + std::abs(way.up) * box.height;
    const auto pixelAt = [&](int column, int row) {
        const Point center = box.center();
        const double t =
            (way.right * (buffer.x(column) - center.x) + way.up * (buffer.y(row) - center.y)) / length + 0.5;
        return pixelOf(ramp.segmentAt(t), t);
    };
    if (way.right != 0) {
        // Rows count downwards: to go up with the gradient means to come from a place further back.
        fillShifted(buffer, columns, rows, -way.up / way.right, pixelAt);
        return;
    }
    for (int row = rows.begin; row < rows.end; ++row) {
        std::fill_n(buffer.row(row).begin() + columns.begin, columns.size(), pixelAt(0, row));
    }
}

void fillRadial(const PixelBuffer& buffer, Point center, Size radii, const GradientRamp& ramp, auto pixelOf) {
    const double step = 1 / (buffer.scale * radii.width);
    const int middle = PixelSpan{center.x * buffer.scale, center.x * buffer.scale, buffer.width}.begin;
    const double right = (buffer.x(middle) - center.x) / radii.width;
    const double left = (center.x - buffer.x(middle - 1)) / radii.width;
    const int rightCount = buffer.width - middle;
    std::vector<std::uint32_t> side(static_cast<std::size_t>(std::max(middle, rightCount)));
    // Where the middle lies between two rows or on one, the lower half repeats the upper; so do the sides.
    const double rowSum = 2 * (buffer.top - center.y) * buffer.scale - 1;
    const bool symmetric = rowSum == std::floor(rowSum);
    for (int row = 0; row < buffer.height; ++row) {
        const auto pixels = buffer.row(row);
        const int twin = symmetric ? static_cast<int>(rowSum) - row : row;
        if (twin >= 0 && twin < row) {
            std::ranges::copy(buffer.row(twin), pixels.begin());
            continue;
        }
        const double y = (buffer.y(row) - center.y) / radii.height;
        fillOutwards(side, right, step, y, ramp, pixelOf);
        std::copy_n(side.begin(), rightCount, pixels.begin() + middle);
        if (left != right) {
            fillOutwards(side, left, step, y, ramp, pixelOf);
        }
        std::reverse_copy(side.begin(), side.begin() + middle, pixels.begin());
    }
}

} // namespace

GradientPlace GradientPlace::inBox(const Rect& box) {
    return {box, box.center(), {box.width / std::numbers::sqrt2, box.height / std::numbers::sqrt2}};
}

void fillGradient(const PixelBuffer& buffer, const GradientPlace& place, std::int64_t orientation,
                  const GradientRamp& ramp, PixelForm form) {
    const auto fill = [&](auto pixelOf) {
        if (orientation == orientation::radial) {
            fillRadial(buffer, place.center, place.radii, ramp, pixelOf);
        } else {
            fillLinear(buffer, place.box, linearWay(orientation), ramp, pixelOf);
        }
    };
    if (form == PixelForm::Premultiplied) {
        fill([](const GradientRamp::Segment& segment, double t) { return segment.pixelAt(t); });
    } else {
        fill([](const GradientRamp::Segment& segment, double t) { return segment.straightPixelAt(t); });
    }
}

} // namespace tessaly
