#pragma once

#include "canvas/CanvasGeometry.h"
#include "model/GlobalData.h"
#include "raster/GradientRamp.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace tessaly {

/// What the canvas shows, laid out in points: the gradient, its guide line and the markers from the lowest to
/// the topmost.
struct CanvasScene {
    struct Marker {
        Rect frame;
        Color color; ///< as stored, never with the opacity
        bool selected;

        bool operator==(const Marker&) const = default;
    };

    CanvasScene(const CanvasGeometry& geometry, const GlobalData& data, std::int64_t selectedMarker);

    Gradient gradient;
    GradientRamp::Opacity opacity; ///< drawn where the notation carries it
    std::optional<GuideLine> guideLine;
    std::vector<Marker> markers;

    bool operator==(const CanvasScene&) const = default;
};

} // namespace tessaly
