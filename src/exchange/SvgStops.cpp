#include "exchange/SvgStops.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

// What was computed, without the last digits that only computing brought in, and on an edge that it is near.
double tidied(double position) {
    constexpr double nearEdge = 1e-4; // by far less than can be seen
    constexpr double digits = 1e12;
    const double edge = std::round(position);
    return (edge == 0.0 || edge == 1.0) && std::abs(position - edge) < nearEdge
               ? std::abs(edge)
               : std::round(position * digits) / digits;
}

RGBAComponents componentsOf(const SvgStop& stop) {
    return stop.stop.color.calibratedRGB().value_or(RGBAComponents{});
}

// What is seen between two stops at that position, as SVG mixes.
SvgStop between(const SvgStop& before, const SvgStop& after, double position) {
    const double share = (position - before.stop.position) / (after.stop.position - before.stop.position);
    const auto mix = [share](double a, double b) { return a + share * (b - a); };
    const RGBAComponents a = componentsOf(before);
    const RGBAComponents b = componentsOf(after);
    SvgStop mixed = before;
    mixed.stop = {position,
                  Color::calibratedRGB(mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)),
                  mix(before.stop.opacity, after.stop.opacity)};
    return mixed;
}

// Cuts the stops below 0.
bool cutStart(std::vector<SvgStop>& stops) {
    const auto firstInside =
        std::ranges::find_if(stops, [](const SvgStop& stop) { return stop.stop.position >= 0.0; });
    if (firstInside == stops.begin()) {
        return false;
    }
    auto kept = firstInside;
    if (firstInside == stops.end()) {
        --kept;
        kept->stop.position = 0.0;
    } else if (firstInside->stop.position > 0.0) {
        --kept;
        *kept = between(*kept, *firstInside, 0.0);
    }
    stops.erase(stops.begin(), kept);
    return true;
}

} // namespace

std::vector<SvgStop> inOrder(std::span<const SvgStop> stops) {
    std::vector<SvgStop> ordered{stops.begin(), stops.end()};
    double highest = 0.0;
    for (SvgStop& stop : ordered) {
        highest = std::max(highest, stop.stop.position);
        stop.stop.position = highest;
    }
    return ordered;
}

void place(std::span<SvgStop> stops, double start, double end) {
    if (start == 0.0 && end == 1.0) {
        return;
    }
    for (SvgStop& stop : stops) {
        stop.stop.position = tidied(start + stop.stop.position * (end - start));
    }
}

bool cutAtEdges(std::vector<SvgStop>& stops) {
    const bool isStartCut = cutStart(stops);
    if (stops.back().stop.position <= 1.0) {
        return isStartCut;
    }
    turn(stops);
    cutStart(stops);
    turn(stops);
    return true;
}

void turn(std::vector<SvgStop>& stops) {
    std::ranges::reverse(stops);
    for (std::size_t i = 0; i < stops.size(); ++i) {
        stops[i].stop.position = tidied(1.0 - stops[i].stop.position);
        stops[i].isHelped = i + 1 < stops.size() && stops[i + 1].isHelped; // it was told by the one before
    }
}

bool isMixingSeen(std::span<const SvgStop> stops) {
    constexpr double seen = 4.0 / 512.0; // half a level, half way between the two
    const auto differs = [](const SvgStop& a, const SvgStop& b) {
        const RGBAComponents one = componentsOf(a);
        const RGBAComponents other = componentsOf(b);
        const double distance = std::max({std::abs(one.red - other.red), std::abs(one.green - other.green),
                                          std::abs(one.blue - other.blue)});
        return !a.isHelped && a.stop.position < b.stop.position &&
               distance * std::abs(a.stop.opacity - b.stop.opacity) > seen;
    };
    return std::ranges::adjacent_find(stops, differs) != stops.end();
}

} // namespace tessaly
