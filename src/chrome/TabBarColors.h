#pragma once

#include "model/Color.h"

#include <optional>

namespace tessaly {

/// The colours of the tab bar. They are the bar's own in a light and in a dark desktop alike.
struct TabBarColors {
    /// Declared for a hover look that was never given behaviour: the first is absent and neither is drawn.
    std::optional<RGBAComponents> highlightColor;
    RGBAComponents borderHighlightColor{51.0F / 255.0F, 152.0F / 255.0F, 213.0F / 255.0F, 0.4};

    RGBAComponents selectColor{124.0F / 255.0F, 155.0F / 255.0F, 173.0F / 255.0F, 0.4};
    RGBAComponents borderSelectColor{84.0F / 255.0F, 115.0F / 255.0F, 113.0F / 255.0F, 0.4};

    RGBAComponents gradientBottom{179.0F / 255.0F, 179.0F / 255.0F, 179.0F / 255.0F};
    RGBAComponents gradientTop{220.0F / 255.0F, 220.0F / 255.0F, 220.0F / 255.0F};
    RGBAComponents separatorDark{1.0 / 3.0, 1.0 / 3.0, 1.0 / 3.0};
    RGBAComponents separatorLight{1.0, 1.0, 1.0};
    RGBAComponents title{0.0, 0.0, 0.0};
};

} // namespace tessaly
