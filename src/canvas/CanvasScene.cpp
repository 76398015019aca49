#include "canvas/CanvasScene.h"

namespace tessaly {
namespace {

Rect placedIn(const Rect& frame, const Rect& part) {
    return {frame.x + part.x, frame.y + part.y, part.width, part.height};
}

} // namespace

std::vector<GradientStop> CanvasScene::drawnStops(const GlobalData& gradient) {
    const bool withOpacity = colorFormat::carriesOpacity(gradient.colorFormatType());
    std::vector<GradientStop> stops;
    stops.reserve(gradient.stopCount());
    for (std::size_t i = 0; i < gradient.stopCount(); ++i) {
        const Color& color = gradient.colorMarkerColor()[i];
        stops.push_back({gradient.colorMarkerPos()[i],
                         withOpacity ? color.withAlpha(gradient.colorMarkerOpacity()[i]) : color});
    }
    return stops;
}

CanvasScene::CanvasScene(const CanvasGeometry& geometry, const GlobalData& gradient,
                         std::int64_t selectedMarker)
    : stops{drawnStops(gradient)},
      orientation{gradient.orientationType()},
      guideLine{geometry.guideLine(orientation)} {
    markers.reserve(stops.size());
    for (std::size_t i = 0; i < stops.size(); ++i) {
        const Rect frame = geometry.markerRect(orientation, stops[i].position);
        const bool selected = static_cast<std::int64_t>(i) == selectedMarker;
        const Rect& dot = selected ? CanvasGeometry::selectedMarkerDot : CanvasGeometry::markerDot;
        // The dot shows the colour as stored, never with the opacity.
        markers.push_back({frame, placedIn(frame, dot), gradient.colorMarkerColor()[i]});
    }
}

} // namespace tessaly
