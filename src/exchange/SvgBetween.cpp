#include "exchange/SvgBetween.h"

#include "exchange/StopMixing.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double unseen = 1.0 / 1024.0; // a quarter of a level
constexpr double levels = 255.0;        // of an opacity: engines keep a byte of it

// What CSS shows where the opacity between the two has come to that value.
ColorStop stopAt(double opacity, const ColorStop& before, const ColorStop& after) {
    const double way = (opacity - before.opacity) / (after.opacity - before.opacity);
    const double position = before.position + way * (after.position - before.position);
    const ReadColor shown =
        mixed({before.color, before.opacity}, {after.color, after.opacity}, way, StopMixing::Premultiplied);
    return {std::clamp(position, before.position, after.position), shown.color, opacity};
}

} // namespace

std::vector<ColorStop> stopsBetween(const ColorStop& before, const ColorStop& after) {
    const double colors = colorDistance(before.color, after.color);
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
        const double last = stops.empty() ? before.opacity : stops.back().opacity;
        const auto isAhead = [&](double opacity) {
            return (opacity - last) * (after.opacity - opacity) > 0.0;
        };
        // What engines keep, unless it is that of a neighbour.
        const double wanted = before.opacity * std::exp(ratio * piece / pieces);
        const double kept = std::round(wanted * levels) / levels;
        if (const double opacity = isAhead(kept) ? kept : wanted; isAhead(opacity)) {
            stops.push_back(stopAt(opacity, before, after));
        }
    }
    return stops;
}

} // namespace tessaly
