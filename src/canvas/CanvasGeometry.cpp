#include "canvas/CanvasGeometry.h"

#include "model/Orientation.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double markerInset = 10;   // corner of the markers that stand centred on an edge of the strip
constexpr double markerOverlap = 15; // corner of the markers that run 5 points inside an edge of the strip

// Half of an extent, cut to whole points.
double wholeHalf(std::int64_t extent) {
    const std::int64_t half = extent / 2;
    return static_cast<double>(half);
}

} // namespace

Rect CanvasGeometry::strip() const {
    return {frameWidth, frameWidth, viewSize_.width - 2 * frameWidth, viewSize_.height - 2 * frameWidth};
}

Rect CanvasGeometry::markerRect(std::int64_t orientation, double position) const {
    const auto width = static_cast<double>(extentX());
    const auto height = static_cast<double>(extentY());
    Point corner;
    switch (orientation) {
    case orientation::leftToRight:
        corner = {width * position + markerInset, markerOverlap};
        break;
    case orientation::bottomToTop:
        corner = {markerOverlap, height * position + markerInset};
        break;
    case orientation::diagonalToTopRight:
        corner = {width * position + markerInset, height * position + markerInset};
        break;
    case orientation::radial:
        corner = {width * position * 0.5 + wholeHalf(extentX()) + markerInset, wholeHalf(extentY())};
        break;
    default:
        corner = {width - width * position + markerInset, height * position + markerInset};
    }
    return {corner.x, corner.y, colorMarkerSize.width, colorMarkerSize.height};
}

std::optional<GuideLine> CanvasGeometry::guideLine(std::int64_t orientation) const {
    const auto [width, height] = backgroundSize();
    const double left = frameWidth;
    const double bottom = frameWidth;
    const double right = width + frameWidth;
    const double top = height + frameWidth;
    switch (orientation) {
    case orientation::diagonalToTopRight:
        return GuideLine{{{left, bottom}, {right, top}}, {{left + 1, bottom}, {right, top - 1}}};
    case orientation::diagonalToTopLeft:
        return GuideLine{{{left, top}, {right, bottom}}, {{left, top - 1}, {right - 1, bottom}}};
    case orientation::radial: {
        const Point middle{right / 2, top / 2};
        return GuideLine{{middle, {right, middle.y}}, {{middle.x, middle.y + 1}, {right, middle.y + 1}}};
    }
    default:
        return std::nullopt;
    }
}

Point CanvasGeometry::radialCenter() const {
    const auto [width, height] = backgroundSize();
    return {(width - frameWidth) * 0.5 + frameWidth, (height - frameWidth) * 0.5 + frameWidth};
}

CanvasGeometry::TrackOffset CanvasGeometry::offsetOnDiagonal(double startX, double slope, double startHeight,
                                                             Point point) const {
    const double x = (frameWidth * slope + (point.x * slope + (point.y - startHeight))) / (2 * slope);
    const Point place{x, (point.x - x) * slope + point.y};
    const double y = place.y - frameWidth;
    const auto [width, height] = backgroundSize();
    return {std::sqrt((x - startX) * (x - startX) + y * y), truncated(std::hypot(width, height)),
            slope < 0 ? std::optional{place} : std::nullopt};
}

CanvasGeometry::TrackOffset CanvasGeometry::offsetOnTrack(std::int64_t orientation, Point point) const {
    const auto [width, height] = backgroundSize();
    switch (orientation) {
    case orientation::leftToRight:
    case orientation::radial:
        return {point.x - markerInset - colorMarkerSize.width * 0.5, extentX(), {}};
    case orientation::bottomToTop:
        return {point.y - markerInset - colorMarkerSize.height * 0.5, extentY(), {}};
    case orientation::diagonalToTopRight:
        return offsetOnDiagonal(frameWidth, height / width, frameWidth, point);
    default:
        return offsetOnDiagonal(width + frameWidth, -height / width, height + frameWidth, point);
    }
}

int CanvasGeometry::alongTrack(std::int64_t orientation, int right, int up) {
    switch (orientation) {
    case orientation::leftToRight:
    case orientation::radial:
        return right;
    case orientation::bottomToTop:
        return up;
    case orientation::diagonalToTopRight:
        return right + up;
    default:
        return up - right;
    }
}

bool CanvasGeometry::dragsHorizontally(std::int64_t orientation) {
    return orientation == orientation::leftToRight || orientation == orientation::radial;
}

std::int64_t CanvasGeometry::dragLimit(std::int64_t orientation) const {
    return dragsHorizontally(orientation) ? extentX() : extentY();
}

double CanvasGeometry::dragOffset(std::int64_t orientation, double position) const {
    const double way = static_cast<double>(dragLimit(orientation)) * position;
    return orientation == orientation::radial ? way * 0.5 + wholeHalf(extentX()) : way;
}

double CanvasGeometry::positionAtDragOffset(std::int64_t orientation, std::int64_t offset) const {
    const std::int64_t limit = dragLimit(orientation);
    if (orientation == orientation::radial) {
        return std::max(0.0, (static_cast<double>(offset) - wholeHalf(limit)) / wholeHalf(limit));
    }
    return static_cast<double>(offset) / static_cast<double>(limit);
}

} // namespace tessaly
