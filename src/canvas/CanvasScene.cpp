#include "canvas/CanvasScene.h"

#include <iterator>

namespace tessaly {

CanvasScene::CanvasScene(const CanvasGeometry& geometry, const GlobalData& data, std::int64_t selectedMarker)
    : gradient{data.gradient},
      opacity{GradientRamp::opacityIn(data.colorFormatType)},
      guideLine{geometry.guideLine(gradient.orientation())} {
    markers.reserve(gradient.stops().size());
    for (const ColorStop& stop : gradient.stops()) {
        markers.push_back({geometry.markerRect(gradient.orientation(), stop.position), stop.color,
                           std::ssize(markers) == selectedMarker});
    }
}

} // namespace tessaly
