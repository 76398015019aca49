#pragma once

#include "exchange/SvgGradient.h"
#include "foundation/Geometry.h"

#include <optional>

namespace tessaly {

/// How a linear gradient of SVG lies in a square box, as CSS would say it.
struct SvgLine {
    double angle = 90.0; ///< 0 ... 360 degrees, 0 upwards, clockwise
    double start = 0.0;  ///< the offsets 0 and 1 as positions between the corners that the angle points to
    double end = 1.0;
    bool isPoint = false; ///< it has no length: the color of the last stop is everywhere
};

/// None: the gradient's transform flattens everything, and nothing is painted. In user space the box is not
/// known; the line is then taken to run right through it. `viewport` is what percentages are shares of there.
std::optional<SvgLine> svgLine(const SvgGradient& gradient, Size viewport);

} // namespace tessaly
