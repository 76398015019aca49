#include "presets/PresetSlotGeometry.h"

#include <algorithm>
#include <cmath>

namespace tessaly {
namespace {

constexpr double margin = 15.0;      // left of the first column and above the first row
constexpr double rowDistant = 45.0;  // from one row to the next
constexpr double freeHeight = 125.0; // container height with no row at all

} // namespace

Point PresetSlotGeometry::itemPos(std::int64_t slot) {
    constexpr auto perRow = static_cast<double>(thumbnailsPerRow);
    const auto number = static_cast<double>(slot);
    const double row = std::ceil(number / perRow) - 1;
    const double column = std::fmod(number, perRow) - 1;
    return {column < 0 ? perRow - 1 : column, row};
}

Size PresetSlotGeometry::containerSize(std::int64_t rows) {
    return {containerWidth, rowDistant * static_cast<double>(rows) + freeHeight};
}

std::int64_t PresetSlotGeometry::thumbDistantFor(double containerHeight, double scrollViewHeight) {
    return containerHeight < scrollViewHeight ? wideThumbDistant : narrowThumbDistant;
}

Rect PresetSlotGeometry::thumbnailRect(std::size_t position) const {
    const Point pos = itemPos(static_cast<std::int64_t>(position) + 1);
    return {thumbDistant_ * pos.x + margin, rowDistant * pos.y + margin, thumbnailSize, thumbnailSize};
}

std::optional<std::size_t> PresetSlotGeometry::positionAt(Point point, std::size_t count) const {
    const double column = std::floor((point.x - margin) / thumbDistant_);
    const Range row = positionsBetween(point.y, std::nextafter(point.y, INFINITY), count);
    if (!(column >= 0) || column >= static_cast<double>(thumbnailsPerRow)) {
        return std::nullopt;
    }
    const std::size_t position = row.first + static_cast<std::size_t>(column);
    if (position >= row.last || !thumbnailRect(position).contains(point)) {
        return std::nullopt;
    }
    return position;
}

PresetSlotGeometry::Range PresetSlotGeometry::positionsBetween(double top, double bottom, std::size_t count) {
    const std::size_t rowCount = (count + thumbnailsPerRow - 1) / thumbnailsPerRow;
    const auto rows = static_cast<double>(rowCount);
    const double firstRow = std::floor((top - margin - thumbnailSize) / rowDistant) + 1;
    const double endRow = std::ceil((bottom - margin) / rowDistant);
    const auto position = [&](double row) {
        return std::min(count, static_cast<std::size_t>(std::clamp(row, 0.0, rows)) * thumbnailsPerRow);
    };
    const std::size_t first = position(firstRow);
    return {first, std::max(first, position(endRow))};
}

} // namespace tessaly
