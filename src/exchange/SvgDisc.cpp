#include "exchange/SvgDisc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly {
namespace {

constexpr SvgLength none{};
constexpr SvgLength half{0.5, true};
constexpr double sameWithin = 1e-3; // of the box; less than half a level

bool isSame(double a, double b) {
    return std::abs(a - b) <= sameWithin;
}

bool isSame(Point a, Point b) {
    return isSame(a.x, b.x) && isSame(a.y, b.y);
}

// A length that may not be negative counts as not written when it is.
double extent(const std::optional<SvgLength>& length, SvgLength otherwise, double whole) {
    return (length && length->value >= 0.0 ? *length : otherwise).of(whole);
}

// The half axes of the ellipse that a map makes of the unit circle, the greater one first.
Size halfAxes(const SvgTransform& map) {
    const double sum = std::hypot(map.a + map.d, map.b - map.c) / 2;
    const double difference = std::hypot(map.a - map.d, map.b + map.c) / 2;
    return {sum + difference, std::abs(sum - difference)};
}

} // namespace

std::optional<SvgDisc> svgDisc(const SvgGradient& gradient) {
    const bool isInUserSpace = gradient.isInUserSpace.value_or(false);
    const Size unit = isInUserSpace ? gradient.viewport : Size{1.0, 1.0};
    const double unitRadius = std::hypot(unit.width, unit.height) / std::numbers::sqrt2;
    const auto& [cx, cy, r, fx, fy, fr] = gradient.geometry;
    const Point center{cx.value_or(half).of(unit.width), cy.value_or(half).of(unit.height)};
    const Point focus{fx ? fx->of(unit.width) : center.x, fy ? fy->of(unit.height) : center.y};
    const double radius = extent(r, half, unitRadius);
    const double inner = extent(fr, none, unitRadius);
    const SvgTransform map = gradient.transform.value_or(SvgTransform{});
    if (const double grown = map.determinant(); grown == 0.0 || !std::isfinite(grown)) {
        return std::nullopt;
    }
    SvgDisc disc;
    disc.isPoint = radius == 0.0;
    const Size axes = halfAxes(map);
    disc.isEllipse = !isSame(axes.height / axes.width, 1.0);
    if (!isInUserSpace) {
        disc.hasOtherSize = !isSame(std::sqrt(axes.width * axes.height) * radius, std::numbers::sqrt2 / 2);
        disc.hasOtherCenter = !isSame(map(center), {0.5, 0.5});
    }
    disc.hasFocus = !isSame({(focus.x - center.x) / radius, (focus.y - center.y) / radius}, {}) ||
                    !isSame(inner / radius, 0.0);
    return disc;
}

} // namespace tessaly
