#pragma once

#include "model/Color.h"

namespace tessaly {

/// One colour stop of a gradient.
struct ColorStop {
    double position = 0.0; ///< along the gradient, 0.0 ... 1.0
    Color color{};
    double opacity = 1.0; ///< 0.0 ... 1.0, opaque; shown and written only by notations that carry it

    bool operator==(const ColorStop&) const = default;
};

} // namespace tessaly
