#include "exchange/StopMixing.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

RGBAComponents componentsOf(const Color& color) {
    return color.calibratedRGB().value_or(RGBAComponents{});
}

} // namespace

ReadColor mixed(const ReadColor& from, const ReadColor& to, double way, StopMixing mixing) {
    const double alpha = from.alpha + (to.alpha - from.alpha) * way;
    const bool isPlain = mixing == StopMixing::Plain;
    if (alpha <= 0.0 && !isPlain) {
        return {from.color, 0.0};
    }
    const double share = isPlain ? way : way * to.alpha / alpha;
    const RGBAComponents a = componentsOf(from.color);
    const RGBAComponents b = componentsOf(to.color);
    const auto mix = [share](double start, double end) { return start + share * (end - start); };
    return {Color::calibratedRGB(mix(a.red, b.red), mix(a.green, b.green), mix(a.blue, b.blue)), alpha};
}

double colorDistance(const Color& one, const Color& other) {
    const RGBAComponents a = componentsOf(one);
    const RGBAComponents b = componentsOf(other);
    return std::max({std::abs(a.red - b.red), std::abs(a.green - b.green), std::abs(a.blue - b.blue)});
}

} // namespace tessaly
