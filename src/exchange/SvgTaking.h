#pragma once

#include "exchange/Reading.h"
#include "exchange/SvgGradient.h"

#include <optional>
#include <span>

namespace tessaly {

/// A gradient of SVG as this program has gradients: with the same picture in a square box, or with notes.
/// None: nothing would be painted.
std::optional<FoundGradient> takeSvgGradient(const SvgGradient& gradient, std::span<const SvgStop> stops);

} // namespace tessaly
