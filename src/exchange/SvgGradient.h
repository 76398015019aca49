#pragma once

#include "exchange/CssColor.h"
#include "exchange/SvgTransform.h"
#include "exchange/SvgValue.h"
#include "foundation/Geometry.h"

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tessaly {

/// A stop as it stands in the document.
struct SvgStop {
    ReadColor color;           ///< with the opacity of the stop
    double position = 0.0;     ///< 0 ... 1, not yet in order
    bool isHelped = false;     ///< a stop that only helps the mixing stood between it and the next one
    std::string_view unread{}; ///< why something of its style is left out, a phrase; static
};

/// A gradient element: what is written there, or comes from the one that it refers to.
struct SvgGradient {
    /// What only gradients of the same kind hand on: x1, y1, x2, y2, or cx, cy, r, fx, fy, fr.
    using Geometry = std::array<std::optional<SvgLength>, 6>;

    bool isRadial = false;
    std::string id;
    std::string reference; ///< the id of another gradient, or empty

    Geometry geometry;
    std::optional<bool> isInUserSpace; ///< rather than in shares of the box that is filled
    std::optional<SvgTransform> transform;
    std::optional<bool> isRepeated;
    bool isMixedLinearly = false; ///< in linear light
    Size viewport{};              ///< what percentages in user space are shares of

    std::size_t firstStop = 0; ///< in the document's list
    std::size_t stopCount = 0;
};

} // namespace tessaly
