#include "exchange/SvgLine.h"

#include <cmath>

namespace tessaly {
namespace {

constexpr SvgLength none{};
constexpr SvgLength whole{1.0, true};

} // namespace

std::optional<SvgLine> svgLine(const SvgGradient& gradient) {
    const bool isInUserSpace = gradient.isInUserSpace.value_or(false);
    const Size unit = isInUserSpace ? gradient.viewport : Size{1.0, 1.0};
    const auto& [x1, y1, x2, y2, unused, unusedToo] = gradient.geometry;
    const Point from{x1.value_or(none).of(unit.width), y1.value_or(none).of(unit.height)};
    const Point way{x2.value_or(whole).of(unit.width) - from.x, y2.value_or(none).of(unit.height) - from.y};
    if (way.x == 0.0 && way.y == 0.0) {
        return SvgLine{{}, true};
    }
    // The offset grows across the lines of one color, which a transform may slant. So it is not the way that
    // is mapped, but the offset as a function of the place.
    const SvgTransform map = gradient.transform.value_or(SvgTransform{});
    const double scale = map.determinant() * (way.x * way.x + way.y * way.y);
    const Point growth{(map.d * way.x - map.b * way.y) / scale, (map.a * way.y - map.c * way.x) / scale};
    const Point start = map(from);
    const double middle = growth.x * (unit.width / 2 - start.x) + growth.y * (unit.height / 2 - start.y);
    const double steepness = std::hypot(growth.x, growth.y);
    if (!std::isfinite(middle) || !std::isfinite(steepness) || steepness == 0.0) {
        return std::nullopt;
    }
    const GradientLine line = gradientLine(middle, {growth.x * unit.width, growth.y * unit.height});
    if (isInUserSpace) {
        const bool isWhole = line.start == 0.0 && line.end == 1.0;
        return SvgLine{{gradientLine(middle, growth).angle}, false, !isWhole};
    }
    return std::isfinite(line.start) && std::isfinite(line.end) ? std::optional{SvgLine{line}} : std::nullopt;
}

} // namespace tessaly
