#pragma once

#include "exchange/LinearDirection.h"
#include "exchange/Reading.h"
#include "exchange/StopPlacement.h"

namespace tessaly {

/// A gradient while it is read.
struct GradientDraft {
    std::vector<WrittenStop> stops; ///< as StopPlacement wants them
    std::int64_t orientation = orientation::leftToRight;
    bool turned = false;
    bool repeating = false;
    bool hasLengths = false; ///< the box may be larger than what the stops cover
    double start = 0.0;      ///< where 0 of the positions lies along the direction
    double span = 1.0;       ///< how far 1 lies behind it
    std::vector<std::string> notes;

    /// The direction, with a note where it is not exact.
    void takeDirection(const LinearDirection& direction);

    /// The gradient that this comes to.
    FoundGradient finished() const;
};

} // namespace tessaly
