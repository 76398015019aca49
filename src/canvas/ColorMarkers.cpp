#include "canvas/ColorMarkers.h"

#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <iterator>
#include <string>

namespace tessaly {
namespace {

void logNumber(const std::string& name, std::int64_t number) {
    DiagnosticLog::write(name + ": " + std::to_string(number));
}

} // namespace

void ColorMarkers::append(const ColorStop& stop) {
    gradient_.append(stop);
    select(std::ssize(gradient_.stops()) - 1);
    logNumber("selectedColorMarkerIndex", selectedColorMarkerIndex_);
}

void ColorMarkers::insertSorted(const ColorStop& stop) {
    selectSorted(gradient_.insertSorted(stop));
}

void ColorMarkers::selectSorted(std::int64_t index) {
    select(index);
    logNumber("addColorMarker", -2); // the number under which a sorted place has always been logged
    if (index < std::ssize(gradient_.stops()) - 1) { // of one at the end nothing is said
        logNumber("position", index);
    }
    logNumber("selectedColorMarkerIndex", index);
}

void ColorMarkers::deleteColorMarker() {
    if (selectedStop()) {
        gradient_.remove(selectedColorMarkerIndex_);
        select(std::max<std::int64_t>(selectedColorMarkerIndex_ - 1, 0));
    }
}

void ColorMarkers::moveSelected(double position) {
    if (selectedStop()) {
        selectSorted(gradient_.move(selectedColorMarkerIndex_, position));
    }
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
