#include "canvas/ColorMarkers.h"

#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tessaly {

void ColorMarkers::addColorMarker(const Color& color, double position, double opacity, std::int64_t index) {
    if (index == insertSorted) {
        DiagnosticLog::write("addColorMarker: " + std::to_string(index));
        select(gradient_.insertSorted({position, color, opacity}));
        logPlace();
    } else if (index == append) {
        gradient_.append({position, color, opacity});
        select(std::ssize(gradient_.stops()) - 1);
    }
    logSelection();
}

void ColorMarkers::deleteColorMarker() {
    if (selectedStop()) {
        gradient_.remove(selectedColorMarkerIndex_);
        select(std::max<std::int64_t>(selectedColorMarkerIndex_ - 1, 0));
    }
}

void ColorMarkers::moveSelected(double position) {
    if (selectedStop()) {
        DiagnosticLog::write("addColorMarker: " + std::to_string(insertSorted));
        select(gradient_.move(selectedColorMarkerIndex_, position));
        logPlace();
        logSelection();
    }
}

void ColorMarkers::logPlace() const {
    if (selectedColorMarkerIndex_ < std::ssize(gradient_.stops()) - 1) { // of one at the end nothing is said
        DiagnosticLog::write("position: " + std::to_string(selectedColorMarkerIndex_));
    }
}

void ColorMarkers::logSelection() const {
    DiagnosticLog::write("selectedColorMarkerIndex: " + std::to_string(selectedColorMarkerIndex_));
}

std::optional<ColorStop> ColorMarkers::selectedStop() const {
    return gradient_.stopAt(selectedColorMarkerIndex_);
}

void ColorMarkers::changeSelected(const std::function<void(ColorStop&)>& change) {
    if (std::optional<ColorStop> stop = selectedStop()) {
        change(*stop);
        gradient_.replace(selectedColorMarkerIndex_, *stop);
    }
}

} // namespace tessaly
