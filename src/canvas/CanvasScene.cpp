#include "canvas/CanvasScene.h"

#include <iterator>

namespace tessaly {

CanvasScene::CanvasScene(const CanvasGeometry& geometry, const GlobalData& data, std::int64_t selectedMarker)
    : gradient{data.gradient},
      opacity{colorFormat::carriesOpacity(data.colorFormatType) ? GradientRamp::Opacity::Drawn
                                                                : GradientRamp::Opacity::Ignored},
      guideLine{geometry.guideLine(gradient.orientation())} {
    markers.reserve(gradient.stops().size());
    for (const ColorStop& stop : gradient.stops()) {
        const Rect frame = geometry.markerRect(gradient.orientation(), stop.position);
        const bool selected = std::ssize(markers) == selectedMarker;
        const Rect& dot = selected ? CanvasGeometry::selectedMarkerDot : CanvasGeometry::markerDot;
        // The dot shows the colour as stored, never with the opacity.
        markers.push_back({frame, {frame.x + dot.x, frame.y + dot.y, dot.width, dot.height}, stop.color});
    }
}

} // namespace tessaly
