#pragma once

#include "canvas/CanvasGeometry.h"
#include "canvas/GradientRamp.h"
#include "model/GlobalData.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessaly {

/// What the canvas shows, laid out in points: the gradient, its guide line and the markers from the lowest to
/// the topmost.
struct CanvasScene {
    struct Marker {
        Rect frame;
        Rect dot; ///< the oval of the stop's colour
        Color color;

        bool operator==(const Marker&) const = default;
    };

    CanvasScene(const CanvasGeometry& geometry, const GlobalData& gradient, std::int64_t selectedMarker);

    /// A gradient's stops as they are drawn: with their opacity where the notation carries it, else as
    /// stored.
    static std::vector<GradientStop> drawnStops(const GlobalData& gradient);

    std::vector<GradientStop> stops;
    std::int64_t orientation;
    std::optional<GuideLine> guideLine;
    std::vector<Marker> markers;

    bool operator==(const CanvasScene&) const = default;
};

} // namespace tessaly
