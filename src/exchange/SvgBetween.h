#pragma once

#include "model/ColorStop.h"

#include <vector>

namespace tessaly {

/// The stops that help between two neighbours, where a picture is mixed as CSS does and SVG would not: SVG
/// mixes colors as they are, CSS by their opacity. As many as keep what is seen within half a level, mostly
/// none. Both stops are opaque in color, with positions in ascending order.
std::vector<ColorStop> stopsBetween(const ColorStop& before, const ColorStop& after);

} // namespace tessaly
