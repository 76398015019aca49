#include "canvas/ColorMarkers.h"

#include "foundation/DiagnosticLog.h"

#include <algorithm>
#include <string>

namespace tessaly {
namespace {

GlobalData& gradient() {
    return GlobalData::sharedData();
}

// Opacities may outnumber the stops: at the end means at the end of each array, not behind the last stop.
void appendStop(const Color& color, double position, double opacity) {
    gradient().colorMarkerColor().push_back(color);
    gradient().colorMarkerPos().push_back(position);
    gradient().colorMarkerOpacity().push_back(opacity);
}

template <typename Values, typename Value>
void insertAt(Values& values, std::int64_t place, const Value& value) {
    values.insert(values.begin() + place, value);
}

template <typename Values>
void removeAt(Values& values, std::int64_t place) {
    values.erase(values.begin() + place);
}

} // namespace

void ColorMarkers::addColorMarker(const Color& color, double position, double opacity, std::int64_t index) {
    const auto& positions = gradient().colorMarkerPos();
    if (index == insertSorted) {
        DiagnosticLog::write("addColorMarker: " + std::to_string(index));
        const auto greater =
            std::find_if(positions.begin(), positions.end(), [&](double other) { return other > position; });
        const std::int64_t place = greater - positions.begin();
        if (greater == positions.end()) {
            appendStop(color, position, opacity);
        } else {
            DiagnosticLog::write("position: " + std::to_string(place));
            insertAt(gradient().colorMarkerPos(), place, position);
            insertAt(gradient().colorMarkerOpacity(), place, opacity);
            insertAt(gradient().colorMarkerColor(), place, color);
        }
        selectedColorMarkerIndex_ = place;
    } else if (index == append) {
        appendStop(color, position, opacity);
        selectedColorMarkerIndex_ = std::ssize(positions) - 1;
    }
    DiagnosticLog::write("selectedColorMarkerIndex: " + std::to_string(selectedColorMarkerIndex_));
}

void ColorMarkers::deleteColorMarker() {
    if (!selectedStop()) {
        return;
    }
    removeAt(gradient().colorMarkerPos(), selectedColorMarkerIndex_);
    removeAt(gradient().colorMarkerColor(), selectedColorMarkerIndex_);
    selectedColorMarkerIndex_ = std::max<std::int64_t>(selectedColorMarkerIndex_ - 1, 0);
}

void ColorMarkers::moveSelected(double position) {
    const auto stop = selectedStop();
    if (!stop) {
        return;
    }
    removeAt(gradient().colorMarkerPos(), selectedColorMarkerIndex_);
    removeAt(gradient().colorMarkerOpacity(), selectedColorMarkerIndex_);
    removeAt(gradient().colorMarkerColor(), selectedColorMarkerIndex_);
    addColorMarker(stop->color, position, stop->opacity, insertSorted);
}

std::optional<ColorStop> ColorMarkers::selectedStop() const {
    return gradient().stopAt(selectedColorMarkerIndex_);
}

void ColorMarkers::setSelectedColor(const Color& color) {
    if (selectedStop()) {
        gradient().colorMarkerColor()[static_cast<std::size_t>(selectedColorMarkerIndex_)] = color;
    }
}

void ColorMarkers::setSelectedPosition(double position) {
    if (selectedStop()) {
        gradient().colorMarkerPos()[static_cast<std::size_t>(selectedColorMarkerIndex_)] = position;
    }
}

void ColorMarkers::setSelectedOpacity(double opacity) {
    if (selectedStop()) {
        gradient().colorMarkerOpacity()[static_cast<std::size_t>(selectedColorMarkerIndex_)] = opacity;
    }
}

} // namespace tessaly
