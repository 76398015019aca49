#pragma once

#include "foundation/Geometry.h"

#include <QPointF>
#include <QRectF>

namespace tessaly {

/// Turn y over between a picture or widget of that many points, where it runs downwards, and a layout of the
/// same height, where it runs upwards.
inline QPointF flipped(Point point, double height) {
    return {point.x, height - point.y};
}

inline QRectF flipped(const Rect& rect, double height) {
    return {rect.x, height - rect.maxY(), rect.width, rect.height};
}

inline Point flipped(QPointF point, double height) {
    return {point.x(), height - point.y()};
}

} // namespace tessaly
