#pragma once

#include "exchange/GradientLine.h"
#include "exchange/SvgGradient.h"
#include "foundation/Geometry.h"

#include <optional>

namespace tessaly {

/// How a linear gradient of SVG lies in a square box.
struct SvgLine {
    GradientLine line;
    bool isPoint = false;        ///< it has no length: the color of the last stop is everywhere
    bool isInProportion = false; ///< how much of the box it covers is not known
};

/// None: the gradient's transform flattens everything, and nothing is painted. In user space the box is not
/// known; the line is then taken to run right through it, as it does where the box is the whole picture.
std::optional<SvgLine> svgLine(const SvgGradient& gradient);

} // namespace tessaly
