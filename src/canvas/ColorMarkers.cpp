#include "canvas/ColorMarkers.h"

#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tessaly {
namespace {

Gradient& gradient() {
    return GlobalData::sharedData().gradient();
}

} // namespace

void ColorMarkers::addColorMarker(const Color& color, double position, double opacity, std::int64_t index) {
    if (index == insertSorted) {
        DiagnosticLog::write("addColorMarker: " + std::to_string(index));
        select(gradient().insertSorted({position, color, opacity}));
        logPlace();
    } else if (index == append) {
        gradient().append({position, color, opacity});
        select(std::ssize(gradient().stops()) - 1);
    }
    logSelection();
}

void ColorMarkers::deleteColorMarker() {
    if (selectedStop()) {
        gradient().remove(selectedColorMarkerIndex_);
        select(std::max<std::int64_t>(selectedColorMarkerIndex_ - 1, 0));
    }
}

void ColorMarkers::moveSelected(double position) {
    if (selectedStop()) {
        DiagnosticLog::write("addColorMarker: " + std::to_string(insertSorted));
        select(gradient().move(selectedColorMarkerIndex_, position));
        logPlace();
        logSelection();
    }
}

void ColorMarkers::logPlace() const {
    if (selectedColorMarkerIndex_ < std::ssize(gradient().stops()) - 1) { // of one at the end nothing is said
        DiagnosticLog::write("position: " + std::to_string(selectedColorMarkerIndex_));
    }
}

void ColorMarkers::logSelection() const {
    DiagnosticLog::write("selectedColorMarkerIndex: " + std::to_string(selectedColorMarkerIndex_));
}

std::optional<ColorStop> ColorMarkers::selectedStop() const {
    return gradient().stopAt(selectedColorMarkerIndex_);
}

void ColorMarkers::changeSelected(const std::function<void(ColorStop&)>& change) {
    if (std::optional<ColorStop> stop = selectedStop()) {
        change(*stop);
        gradient().replace(selectedColorMarkerIndex_, *stop);
    }
}

} // namespace tessaly
