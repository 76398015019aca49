#pragma once

#include "model/Gradient.h"

#include <cstdint>

namespace tessaly {

/// One saved gradient.
struct Preset {
    Gradient gradient;
    std::int64_t index = 0; ///< the position in the list of presets, as of the last relayout

    bool operator==(const Preset&) const = default;
};

} // namespace tessaly
