#include "canvas/GradientRamp.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace tessaly {
namespace {

using Channels = std::array<double, 4>; // alpha, red, green, blue

constexpr double farAway = 1e6; // no picture reaches a position beyond

// Premultiplied, over the backdrop, as the number whose whole part is the rounded channel.
Channels channelsOf(const Color& color, const RGBAComponents& backdrop) {
    const RGBAComponents rgb = color.calibratedRGB().value_or(RGBAComponents{0.0, 0.0, 0.0, 0.0});
    const double behind = (1.0 - rgb.alpha) * backdrop.alpha;
    const auto channel = [&](double over, double under) {
        return (over * rgb.alpha + under * behind) * 255.0 + 0.5;
    };
    return {channel(1.0, 1.0), channel(rgb.red, backdrop.red), channel(rgb.green, backdrop.green),
            channel(rgb.blue, backdrop.blue)};
}

} // namespace

GradientRamp::GradientRamp(std::span<const GradientStop> stops, const RGBAComponents& backdrop) {
    constexpr Channels constant{};
    Segment last{-farAway, -farAway, channelsOf(stops.front().color, backdrop), constant};
    for (const GradientStop& stop : stops) {
        const double wanted = std::isnan(stop.position) ? 0.0 : stop.position;
        const double position = std::clamp(wanted, last.end, farAway);
        const Channels color = channelsOf(stop.color, backdrop);
        if (position > last.end) {
            // The first stretch runs up to the first stop and does not change.
            Segment segment{last.end, position, last.color, constant};
            for (std::size_t i = 0; i < color.size(); ++i) {
                segment.change[i] = (color[i] - last.color[i]) / (position - last.end);
            }
            segments_.push_back(segment);
        }
        last.end = position;
        last.color = color;
    }
    segments_.push_back({last.end, std::numeric_limits<double>::infinity(), last.color, constant});
}

const GradientRamp::Segment& GradientRamp::segmentAt(double t) const {
    const auto segment = std::upper_bound(segments_.begin(), segments_.end(), t,
                                          [](double place, const Segment& s) { return place < s.end; });
    return segment == segments_.end() ? segments_.back() : *segment;
}

} // namespace tessaly
