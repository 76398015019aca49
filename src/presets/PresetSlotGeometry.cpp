#include "presets/PresetSlotGeometry.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double margin = 15.0;      // left of the first column and above the first row
constexpr double rowDistant = 45.0;  // from one row to the next
constexpr double freeHeight = 125.0; // container height with no row at all
constexpr double markWidth = 4.0;    // of where a thumbnail would land

double rowsOf(std::size_t count) {
    constexpr std::size_t perRow = PresetSlotGeometry::thumbnailsPerRow;
    const std::size_t rows = (count + perRow - 1) / perRow; // the last one may be short
    return static_cast<double>(rows);
}

} // namespace

Point PresetSlotGeometry::itemPos(std::size_t position) {
    const std::size_t row = position / thumbnailsPerRow;
    return {static_cast<double>(position % thumbnailsPerRow), static_cast<double>(row)};
}

Size PresetSlotGeometry::containerSize(std::size_t count) {
    return {containerWidth, rowDistant * rowsOf(count) + freeHeight};
}

double PresetSlotGeometry::thumbDistantFor(double containerHeight, double scrollViewHeight) {
    return containerHeight < scrollViewHeight ? wideThumbDistant : narrowThumbDistant;
}

Rect PresetSlotGeometry::thumbnailRect(std::size_t position) const {
    const Point pos = itemPos(position);
    return {thumbDistant_ * pos.x + margin, rowDistant * pos.y + margin, thumbnailSize, thumbnailSize};
}

std::optional<std::size_t> PresetSlotGeometry::positionAt(Point point, std::size_t count) const {
    const Range row = positionsBetween(point.y, std::nextafter(point.y, INFINITY), count);
    for (std::size_t position = row.first; position < row.last; ++position) {
        if (thumbnailRect(position).contains(point)) {
            return position;
        }
    }
    return std::nullopt;
}

std::optional<PresetSlotGeometry::Landing> PresetSlotGeometry::landingOf(std::size_t held, Point point,
                                                                         std::size_t count) const {
    const double betweenRows = rowDistant - thumbnailSize;
    const double row =
        std::clamp(std::floor((point.y - margin + betweenRows / 2) / rowDistant), 0.0, rowsOf(count) - 1);
    const std::size_t first = static_cast<std::size_t>(row) * thumbnailsPerRow;
    const auto inRow = static_cast<double>(std::min(thumbnailsPerRow, count - first));
    // Those whose middles the point has passed stay in front.
    const double column =
        std::clamp(std::ceil((point.x - margin - thumbnailSize / 2) / thumbDistant_), 0.0, inRow);
    const std::size_t gap = first + static_cast<std::size_t>(column);
    const std::size_t position = gap > held ? gap - 1 : gap;
    if (position == held) {
        return std::nullopt;
    }
    const double betweenColumns = thumbDistant_ - thumbnailSize;
    const double x = margin + thumbDistant_ * column - (betweenColumns + markWidth) / 2;
    return Landing{
        position,
        {std::min(x, containerWidth - markWidth), margin + rowDistant * row, markWidth, thumbnailSize}};
}

PresetSlotGeometry::Range PresetSlotGeometry::positionsBetween(double top, double bottom, std::size_t count) {
    const double firstRow = std::floor((top - margin - thumbnailSize) / rowDistant) + 1;
    const double endRow = std::ceil((bottom - margin) / rowDistant);
    const auto position = [&](double row) {
        return std::min(count,
                        static_cast<std::size_t>(std::clamp(row, 0.0, rowsOf(count))) * thumbnailsPerRow);
    };
    const std::size_t first = position(firstRow);
    return {first, std::max(first, position(endRow))};
}

} // namespace tessaly
