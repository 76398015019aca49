#pragma once

#include "foundation/RGBAComponents.h"

#include <optional>

namespace tessaly {

/// The colours of the tab bar. They are the bar's own in a light and in a dark desktop alike.
struct TabBarColors {
    /// Declared for a hover look that was never given behaviour: the first is absent and neither is drawn.
    std::optional<RGBAComponents> highlightColor;
    RGBAComponents borderHighlightColor = rgbOfBytes(51, 152, 213, 0.4);

    RGBAComponents selectColor = rgbOfBytes(124, 155, 173, 0.4);
    RGBAComponents borderSelectColor = rgbOfBytes(84, 115, 113, 0.4);

    RGBAComponents gradientBottom = rgbOfBytes(179, 179, 179);
    RGBAComponents gradientTop = rgbOfBytes(220, 220, 220);
    RGBAComponents separatorDark{1.0 / 3.0, 1.0 / 3.0, 1.0 / 3.0};
    RGBAComponents separatorLight{1.0, 1.0, 1.0};
    RGBAComponents title{0.0, 0.0, 0.0};
};

} // namespace tessaly
