#pragma once

#include "foundation/Geometry.h"
#include "model/Gradient.h"
#include "raster/GradientRamp.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// An attribute with the blank before it. The value holds nothing that XML would want escaped.
std::string svgAttribute(std::string_view name, std::string_view value);

/// The attributes of a size in pixels.
std::string svgSizeText(std::int64_t width, std::int64_t height);

/// A document of that size.
std::string svgDocumentText(std::int64_t width, std::int64_t height, const std::string& content);

/// A gradient as an SVG element, painted as CSS paints it in a box of that size at the origin, in pixels;
/// without one, in any square. Reading it gives the same numbers: `stop-color` has the nearest bytes,
/// `data-color` the channels where they lie between, and stops of the class `between` only help the mixing.
std::string svgGradientText(std::string_view id, const Gradient& gradient, GradientRamp::Opacity opacity,
                            const std::optional<Size>& box);

} // namespace tessaly
