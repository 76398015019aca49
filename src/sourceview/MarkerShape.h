#pragma once

#include "foundation/Geometry.h"
#include "foundation/RGBAComponents.h"

namespace tessaly {

/// The marker of a line: a tag that points right, its left corners rounded. One closed path in points, y
/// upwards: from `tip` to `upperEdge`, along the arcs around `upperCorner` and `lowerCorner`, each a quarter
/// of a circle counter-clockwise, to `lowerEdge` and back.
struct MarkerShape {
    static constexpr double height = 13.0;
    static constexpr double cornerRadius = 3.0;
    static constexpr double lineWidth = 2.0;
    static constexpr RGBAComponents fill{0.003, 0.56, 0.85, 1.0};
    static constexpr RGBAComponents stroke{0.0, 0.44, 0.8, 1.0};

    explicit constexpr MarkerShape(Size image)
        : tip{image.width - 1, 2 + (image.height - 3) / 2},
          upperEdge{image.width - 6, image.height - 1},
          upperCorner{4, image.height - 4},
          lowerCorner{4, 5},
          lowerEdge{image.width - 6, 2} {}

    Point tip;
    Point upperEdge;
    Point upperCorner; ///< its arc runs from 90 to 180 degrees
    Point lowerCorner; ///< its arc runs from 180 to 270 degrees
    Point lowerEdge;
};

} // namespace tessaly
