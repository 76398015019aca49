#include "raster/GradientRamp.h"

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

GradientRamp::GradientRamp(std::span<const ColorStop> stops, Opacity opacity,
                           const RGBAComponents& backdrop) {
    constexpr Channels constant{};
    const auto inReach = [](double position) {
        return std::isnan(position) ? 0.0 : std::clamp(position, -farAway, farAway);
    };
    const auto drawn = [&](const ColorStop& stop) {
        return channelsOf(opacity == Opacity::Drawn ? stop.color.withAlpha(stop.opacity) : stop.color,
                          backdrop);
    };
    double end = inReach(stops.front().position);
    Channels color = drawn(stops.front());
    segments_.push_back({end, end, color, constant}); // all before the first stop
    for (const ColorStop& stop : stops) {
        const double position = std::max(inReach(stop.position), end);
        const Channels next = drawn(stop);
        if (position > end) {
            Segment segment{end, position, color, constant};
            for (std::size_t i = 0; i < color.size(); ++i) {
                segment.change[i] = (next[i] - color[i]) / (position - end);
            }
            segments_.push_back(segment);
        }
        end = position;
        color = next;
    }
    segments_.push_back({end, std::numeric_limits<double>::infinity(), color, constant});
}

RGBAComponents GradientRamp::colorAt(double t) const {
    const Segment& segment = segmentAt(t);
    const auto channel = [&](std::size_t index) {
        return (segment.color[index] - 0.5 + (t - segment.start) * segment.change[index]) / 255.0;
    };
    const double alpha = std::clamp(channel(0), 0.0, 1.0);
    if (alpha <= 0.0) {
        return {0.0, 0.0, 0.0, 0.0};
    }
    return {channel(1) / alpha, channel(2) / alpha, channel(3) / alpha, alpha};
}

const GradientRamp::Segment& GradientRamp::segmentAt(double t) const {
    const auto segment = std::ranges::upper_bound(segments_, t, {}, &Segment::end);
    return segment == segments_.end() ? segments_.back() : *segment;
}

} // namespace tessaly
