#pragma once

#include "foundation/Contrast.h"
#include "foundation/qt/ToQColor.h"

namespace tessaly {

/// The colour as it shows on its background, moved as far towards black or white as the contrast wants.
inline QColor readableOn(const QColor& background, const QColor& color, double leastContrast) {
    const RGBAComponents below = toComponents(background);
    constexpr double rounding = 0.05; // to whole channels
    const double away = isDark(background) ? 1.0 : 0.0;
    return toQColor(withContrast(leastContrast + rounding, laidOver(below, toComponents(color)),
                                 {away, away, away, 1.0}, below));
}

} // namespace tessaly
