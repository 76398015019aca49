#pragma once

#include "exchange/SvgGradient.h"

#include <span>
#include <vector>

namespace tessaly {

/// The stops as SVG draws them: none lies below an earlier one.
std::vector<SvgStop> inOrder(std::span<const SvgStop> stops);

/// Moves the stops, so that the positions 0 and 1 come to `start` and `end`, which is greater.
void place(std::span<SvgStop> stops, double start, double end);

/// Cuts what lies outside 0 ... 1 and puts stops with the colors that are there at the edges. True: it did.
/// The stops are in order, and there is at least one.
bool cutAtEdges(std::vector<SvgStop>& stops);

/// The other way round: the same picture when the direction is turned too.
void turn(std::vector<SvgStop>& stops);

/// SVG mixes colors as they are, CSS by their opacity. True: somewhere that shows.
bool isMixingSeen(std::span<const SvgStop> stops);

} // namespace tessaly
