#include "exchange/SvgLine.h"

#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

constexpr SvgLength none{};
constexpr SvgLength whole{1.0, true};
constexpr double sameWithin = 1e-4; // by far less than can be seen

// The places of the offsets 0 and 1 for a line at that angle, given the offset in the middle of the box and
// by how much it grows along a unit of the way.
void placeIn(SvgLine& line, double middle, double growth) {
    const double radians = line.angle * std::numbers::pi / 180.0;
    const double length = std::abs(std::sin(radians)) + std::abs(std::cos(radians));
    const double span = growth * length;
    if (std::abs(span - 1.0) > sameWithin || std::abs(middle - 0.5) > sameWithin) {
        line.start = 0.5 - middle / span;
        line.end = 0.5 + (1.0 - middle) / span;
    }
}

} // namespace

std::optional<SvgLine> svgLine(const SvgGradient& gradient, Size viewport) {
    const bool isInUserSpace = gradient.isInUserSpace.value_or(false);
    const Size unit = isInUserSpace ? viewport : Size{1.0, 1.0};
    const auto& [x1, y1, x2, y2, unused, unusedToo] = gradient.geometry;
    const Point from{x1.value_or(none).of(unit.width), y1.value_or(none).of(unit.height)};
    const Point way{x2.value_or(whole).of(unit.width) - from.x, y2.value_or(none).of(unit.height) - from.y};
    SvgLine line;
    if (way.x == 0.0 && way.y == 0.0) {
        line.isPoint = true;
        return line;
    }
    // The offset grows across the lines of one color, which a transform may slant. So it is not the way that
    // is mapped, but the offset as a function of the place.
    const SvgTransform map = gradient.transform.value_or(SvgTransform{});
    const double scale = map.determinant() * (way.x * way.x + way.y * way.y);
    const Point growth{(map.d * way.x - map.b * way.y) / scale, (map.a * way.y - map.c * way.x) / scale};
    const Point start = map(from);
    const double middle = growth.x * (0.5 - start.x) + growth.y * (0.5 - start.y);
    const double steepness = std::hypot(growth.x, growth.y);
    if (!std::isfinite(middle) || !std::isfinite(steepness) || steepness == 0.0) {
        return std::nullopt;
    }
    line.angle = std::atan2(growth.x, -growth.y) * 180.0 / std::numbers::pi;
    line.angle += line.angle < 0.0 ? 360.0 : 0.0;
    if (!isInUserSpace) {
        placeIn(line, middle, steepness);
    }
    return std::isfinite(line.start) && std::isfinite(line.end) ? std::optional{line} : std::nullopt;
}

} // namespace tessaly
