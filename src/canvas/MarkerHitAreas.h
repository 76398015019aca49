#pragma once

#include "canvas/CanvasScene.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessaly {

/// Where the markers can be grabbed: the oval in each marker's frame, in the order of the stops.
class MarkerHitAreas {
  public:
    void rebuild(const CanvasScene& scene);

    /// The stop whose marker is at a point. Of overlapping markers it is the one with the lowest index,
    /// although the highest is drawn on top.
    std::optional<std::int64_t> markerAt(Point point) const;

  private:
    std::vector<Rect> colorMarkerPath_;
};

} // namespace tessaly
