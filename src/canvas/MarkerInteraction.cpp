#include "canvas/MarkerInteraction.h"

#include "foundation/DiagnosticLog.h"
#include "foundation/NumberText.h"
#include "foundation/Truncation.h"
#include "model/EditStep.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <numeric>
#include <string>
#include <utility>

namespace tessaly {

MarkerInteraction::MarkerInteraction(const CanvasGeometry& geometry, ColorMarkers& markers, History& history,
                                     std::function<void()> repaint)
    : geometry_{geometry}, markers_{markers}, history_{history}, repaint_{std::move(repaint)} {}

// Of overlapping markers it is the one with the lowest index, although the highest is drawn on top.
std::optional<std::int64_t> MarkerInteraction::markerAt(Point point) const {
    constexpr double radius = CanvasGeometry::colorMarkerSize.width / 2;
    const auto isGrabbed = [&](const ColorStop& stop) {
        const Point center = geometry_.markerRect(orientation(), stop.position).center();
        const double x = (point.x - center.x) / radius;
        const double y = (point.y - center.y) / radius;
        return x * x + y * y <= 1;
    };
    const auto& stops = markers_.gradient().stops();
    const auto hit = std::ranges::find_if(stops, isGrabbed);
    return hit == stops.end() ? std::nullopt : std::optional{hit - stops.begin()};
}

void MarkerInteraction::mouseDown(Point point, int clickCount) {
    mouseUp(); // the one before may have gone to a menu that opened meanwhile
    isDown_ = true;
    history_.begin(clickCount == 2 ? editStep::addStop : editStep::moveStop);
    if (clickCount == 2 && !addAt(point)) {
        history_.rename(editStep::boundTrack); // all that it may have done
        return;
    }
    if (const auto marker = markerAt(point)) {
        grab(*marker, point);
    }
}

void MarkerInteraction::mouseUp() {
    startDrag_ = false;
    if (std::exchange(isDown_, false)) {
        history_.end();
    }
}

bool MarkerInteraction::addAt(Point point) {
    DiagnosticLog::write("double Clicked!");
    const bool radial = orientation() == orientation::radial;
    if (radial) {
        // The track starts in the middle. The bound stays for every later orientation: deliberate, markers
        // that were placed on a disc keep out of the half that the disc does not use.
        minColorMarkerPos_ = geometry_.extentX() / 2;
    }
    const auto [offset, limit, onDescent] = geometry_.offsetOnTrack(orientation(), point);
    if (onDescent) {
        DiagnosticLog::write("x: " + fixedText(onDescent->x, 6) + " y: " + fixedText(onDescent->y, 6));
    }
    const std::int64_t place = truncated(offset);
    if (place < minColorMarkerPos_ || place > limit) {
        return false;
    }
    const auto way = static_cast<double>(radial ? place - minColorMarkerPos_ : place);
    addBlackStop(way / static_cast<double>(limit - minColorMarkerPos_));
    return true;
}

void MarkerInteraction::addBlackStop(double position) {
    markers_.insertSorted({position});
    repaint_();
}

void MarkerInteraction::grab(std::int64_t marker, Point point) {
    markers_.select(marker);
    startDragCursorPos_ = point;
    const bool across = CanvasGeometry::dragsHorizontally(orientation());
    std::int64_t& start = across ? startDragImagePosX_ : startDragImagePosY_;
    start = truncated(
        geometry_.dragOffset(orientation(), markers_.selectedStop().value_or(ColorStop{}).position));
    DiagnosticLog::write("Clicked!");
    DiagnosticLog::write((across ? "startDragImagePosX: " : "startDragImagePosY: ") + std::to_string(start));
    startDrag_ = true;
    repaint_();
}

void MarkerInteraction::mouseDragged(Point point) {
    if (!startDrag_) {
        return;
    }
    if (CanvasGeometry::dragsHorizontally(orientation())) {
        moveSelectedTo(point.x - startDragCursorPos_.x + static_cast<double>(startDragImagePosX_));
    } else {
        // On the diagonals too: their markers follow the mouse's way up and down alone.
        moveSelectedTo(point.y - startDragCursorPos_.y + static_cast<double>(startDragImagePosY_));
    }
}

void MarkerInteraction::moveSelectedTo(double offset) {
    const auto stop = markers_.selectedStop();
    if (!stop) {
        return;
    }
    const std::int64_t place =
        std::min(std::max(truncated(offset), minColorMarkerPos_), geometry_.dragLimit(orientation()));
    const double position = geometry_.positionAtDragOffset(orientation(), place);
    if (orientation() == orientation::radial) {
        DiagnosticLog::write("newPos: " + fixedText(position, 6));
    }
    markerDragOrientation_ = position > stop->position ? 1 : 0;
    markers_.moveSelected(position);
    repaint_();
}

bool MarkerInteraction::rightMouseDown(Point point) {
    const auto marker = markerAt(point);
    if (marker) {
        history_.endRun();
        markers_.select(*marker);
    }
    return marker.has_value();
}

void MarkerInteraction::deleteColorMarker() {
    if (markers_.selectedStop()) {
        startDrag_ = false;
        history_.act(editStep::deleteStop, [this] {
            markers_.deleteColorMarker();
            repaint_();
        });
    }
}

void MarkerInteraction::addBesideSelected() {
    constexpr double middle = 0.5;
    const Gradient& gradient = markers_.gradient();
    const std::int64_t selected = markers_.selectedColorMarkerIndex();
    const auto next = gradient.stopAt(selected + 1);
    const auto neighbour = next ? next : gradient.stopAt(selected - 1);
    const auto stop = gradient.stopAt(selected);
    const double position = stop && neighbour ? std::midpoint(stop->position, neighbour->position) : middle;
    startDrag_ = false;
    history_.act(editStep::addStop, [&] { addBlackStop(position); });
}

bool MarkerInteraction::moveSelected(int right, int up, std::int64_t points) {
    const int direction = CanvasGeometry::alongTrack(orientation(), right, up);
    const auto stop = markers_.selectedStop();
    if (direction == 0 || !stop) {
        return false;
    }
    const double place = std::round(geometry_.dragOffset(orientation(), stop->position));
    history_.act(editStep::moveStop, {"Canvas"},
                 [&] { moveSelectedTo(place + static_cast<double>(direction * points)); });
    return true;
}

bool MarkerInteraction::select(std::int64_t marker) {
    if (!markers_.gradient().stopAt(marker)) {
        return false;
    }
    startDrag_ = false;
    history_.endRun();
    markers_.select(marker);
    repaint_();
    return true;
}

bool MarkerInteraction::selectNeighbour(std::int64_t places) {
    if (markers_.selectedStop()) {
        return select(markers_.selectedColorMarkerIndex() + places);
    }
    return select(places > 0 ? 0 : std::ssize(markers_.gradient().stops()) - 1);
}

} // namespace tessaly
