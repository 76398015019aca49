#pragma once

#include "model/Gradient.h"
#include "raster/GradientRamp.h"

#include <string>

namespace tessaly {

/// A picture of the gradient as an SVG document, painted as a browser paints its code in a box of that size,
/// in pixels. Opacity that is not drawn is not written either.
std::string svgPictureText(const Gradient& gradient, GradientRamp::Opacity opacity, int width, int height);

} // namespace tessaly
