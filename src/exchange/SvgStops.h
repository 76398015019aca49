#pragma once

#include "exchange/StopPlacement.h"
#include "exchange/SvgGradient.h"

#include <span>
#include <vector>

namespace tessaly {

/// The stops as SVG draws them: none lies below an earlier one.
std::vector<SvgStop> inOrder(std::span<const SvgStop> stops);

/// SVG mixes colors as they are, CSS by their opacity. True: somewhere between 0 and 1 of a track that the
/// stops, in order, lie on, that shows.
bool isMixingSeen(std::span<const SvgStop> stops, StopTrack track);

} // namespace tessaly
