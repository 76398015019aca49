#include "canvas/MarkerHitAreas.h"

#include <algorithm>
#include <iterator>

namespace tessaly {
namespace {

bool ovalContains(const Rect& frame, Point point) {
    const Point center = frame.center();
    const double x = (point.x - center.x) / (frame.width / 2);
    const double y = (point.y - center.y) / (frame.height / 2);
    return x * x + y * y <= 1;
}

} // namespace

void MarkerHitAreas::rebuild(const CanvasScene& scene) {
    colorMarkerPath_.clear();
    std::ranges::transform(scene.markers, std::back_inserter(colorMarkerPath_), &CanvasScene::Marker::frame);
}

std::optional<std::int64_t> MarkerHitAreas::markerAt(Point point) const {
    const auto hit = std::find_if(colorMarkerPath_.begin(), colorMarkerPath_.end(),
                                  [&](const Rect& frame) { return ovalContains(frame, point); });
    return hit == colorMarkerPath_.end() ? std::nullopt : std::optional{hit - colorMarkerPath_.begin()};
}

} // namespace tessaly
