#include "exchange/GradientDraft.h"

#include <algorithm>

namespace tessaly {

void GradientDraft::takeDirection(const LinearDirection& direction) {
    orientation = direction.orientation;
    turned = direction.turned;
    if (!direction.isExact()) {
        notes.push_back(direction.note());
    }
}

FoundGradient GradientDraft::finished() const {
    std::vector<WrittenStop> moved = stops;
    for (WrittenStop& stop : moved) {
        if (stop.position) {
            stop.position = start + span * *stop.position;
        }
    }
    const StopPlacement placement{moved};
    FoundGradient found{Gradient{placement.stops(turned), orientation}, {}, notes};
    std::ranges::copy(placement.notes(), std::back_inserter(found.notes));
    if (std::ranges::any_of(stops, [](const WrittenStop& s) { return s.color && s.color->clipped; })) {
        found.notes.emplace_back("colors outside sRGB clipped");
    }
    if (repeating && (hasLengths || !placement.coversAll())) {
        found.notes.emplace_back("repeating gradient taken once");
    }
    return found;
}

} // namespace tessaly
