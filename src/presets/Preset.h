#pragma once

#include "model/ColorStop.h"
#include "model/Orientation.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessaly {

/// One saved gradient: three parallel arrays of colour stops, as the gradient being edited has them.
struct Preset {
    std::vector<double> colorMarkerPos; ///< 0.0 ... 1.0; their count is the count of stops
    std::vector<Color> colorMarkerColor;
    std::vector<double> colorMarkerOpacity; ///< 0.0 ... 1.0; may be more than the stops
    std::int64_t orientationType = orientation::leftToRight;
    std::int64_t index = 0; ///< the position in the list of presets, as of the last relayout

    /// Stop `i`, below the count of positions; opaque black where an array is too short.
    ColorStop stopAt(std::size_t i) const {
        return {colorMarkerPos[i], i < colorMarkerColor.size() ? colorMarkerColor[i] : Color{},
                i < colorMarkerOpacity.size() ? colorMarkerOpacity[i] : 1.0};
    }

    bool operator==(const Preset&) const = default;
};

} // namespace tessaly
