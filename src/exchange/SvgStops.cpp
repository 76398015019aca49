#include "exchange/SvgStops.h"

#include <algorithm>
#include <cmath>

namespace tessaly {

std::vector<SvgStop> inOrder(std::span<const SvgStop> stops) {
    std::vector<SvgStop> ordered{stops.begin(), stops.end()};
    double highest = 0.0;
    for (SvgStop& stop : ordered) {
        highest = std::max(highest, stop.position);
        stop.position = highest;
    }
    return ordered;
}

bool isMixingSeen(std::span<const SvgStop> stops, StopTrack track) {
    constexpr double seen = 4.0 / 512.0; // half a level, half way between the two
    const double length = track.end - track.start;
    const double first = -track.start / length; // what is seen, as positions of the stops
    const double last = (1.0 - track.start) / length;
    const auto differs = [=](const SvgStop& a, const SvgStop& b) {
        const double way = std::min(b.position, last) - std::max(a.position, first);
        if (a.isHelped || way <= 0.0) {
            return false;
        }
        const double colors = colorDistance(a.color.color, b.color.color);
        const double share = way / (b.position - a.position);
        return colors * std::abs(a.color.alpha - b.color.alpha) * share * share > seen;
    };
    return std::ranges::adjacent_find(stops, differs) != stops.end();
}

} // namespace tessaly
