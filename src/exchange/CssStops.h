#pragma once

#include "exchange/CssComponents.h"
#include "exchange/StopPlacement.h"

namespace tessaly {

/// The list of stops of a gradient function.
struct CssStops {
    enum class Lengths { None, InProportion, LeftOut };

    std::vector<WrittenStop> stops;
    bool mixesInSrgb = true; ///< where the gradient says nothing else
    Lengths lengths = Lengths::None;
};

/// "red 10%, 30%, blue 50% 60%": positions with or without, hints, lengths in proportion to the longest.
/// None: it is no such list.
std::optional<CssStops> readCssStops(std::span<const CssArgument> arguments);

} // namespace tessaly
