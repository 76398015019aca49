#pragma once

#include "exchange/SvgGradient.h"
#include "foundation/Geometry.h"

#include <optional>

namespace tessaly {

/// How a radial gradient of SVG lies in a square box, told by what is not as in the program's own: in the
/// middle of the box, its last color on the corners.
struct SvgDisc {
    bool isPoint = false; ///< it has no extent: the color of the last stop is everywhere
    bool isEllipse = false;
    bool hasOtherSize = false;
    bool hasOtherCenter = false;
    bool hasFocus = false; ///< beside the center, or wider than a point
};

/// None: the gradient's transform flattens everything, and nothing is painted. In user space the box is not
/// known, nor then the size and the place in it.
std::optional<SvgDisc> svgDisc(const SvgGradient& gradient);

} // namespace tessaly
