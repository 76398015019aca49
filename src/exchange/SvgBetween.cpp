#include "exchange/SvgBetween.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double unseen = 1.0 / 512.0; // half a level

RGBAComponents componentsOf(const ColorStop& stop) {
    return stop.color.calibratedRGB().value_or(RGBAComponents{});
}

double distance(const RGBAComponents& a, const RGBAComponents& b) {
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

// What CSS shows where the opacity between the two has come to that value.
ColorStop mixed(const ColorStop& before, const ColorStop& after, double opacity) {
    const double way = (opacity - before.opacity) / (after.opacity - before.opacity);
    const double share = way * after.opacity / opacity;
    const RGBAComponents a = componentsOf(before);
    const RGBAComponents b = componentsOf(after);
    const auto mix = [share](double from, double to) { return from + share * (to - from); };
    return {std::clamp(before.position + way * (after.position - before.position), before.position,
                       after.position),
            Color::calibratedRGB(mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)), opacity};
}

} // namespace

std::vector<ColorStop> stopsBetween(const ColorStop& before, const ColorStop& after) {
    const double colors = distance(componentsOf(before), componentsOf(after));
    const double opacities = std::abs(before.opacity - after.opacity);
    // Of two stops the one is off by s (1 - s) times the product of both differences, at most a quarter of
    // it.
    if (before.position >= after.position || colors * opacities / 4 <= unseen) {
        return {};
    }
    // Next to what is not seen at all, CSS shows nothing of its color.
    if (before.opacity == 0.0) {
        return {{before.position, after.color, 0.0}};
    }
    if (after.opacity == 0.0) {
        return {{after.position, before.color, 0.0}};
    }
    // CSS's color moves with the reciprocal of the opacity. So between opacities of one ratio r it is off by
    // the same, (r - 1)^2 / r times a quarter of `bend`, wherever they lie: equal ratios need the fewest
    // stops.
    const double bend = colors * before.opacity * after.opacity / opacities;
    const double largestRatio = std::acosh(1 + 2 * unseen / bend); // logarithms of ratios
    const double ratio = std::log(after.opacity / before.opacity);
    const int pieces = std::max(static_cast<int>(std::ceil(std::abs(ratio) / largestRatio)), 2);
    std::vector<ColorStop> stops;
    for (int piece = 1; piece < pieces; ++piece) {
        stops.push_back(mixed(before, after, before.opacity * std::exp(ratio * piece / pieces)));
    }
    return stops;
}

} // namespace tessaly
