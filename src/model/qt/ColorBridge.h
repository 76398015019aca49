#pragma once

#include "foundation/qt/ToQColor.h"
#include "model/Color.h"

namespace tessaly {

/// The toolkit's colour for one of ours; transparent for a colour without RGB form.
inline QColor toQColor(const Color& color) {
    return toQColor(color.calibratedRGB().value_or(RGBAComponents{0.0, 0.0, 0.0, 0.0}));
}

/// Our colour for one of the toolkit's; an invalid one has no RGB form.
inline Color fromQColor(const QColor& color) {
    if (!color.isValid()) {
        return Color::withoutRGBForm();
    }
    const RGBAComponents rgb = toComponents(color);
    return Color::calibratedRGB(rgb.red, rgb.green, rgb.blue, rgb.alpha);
}

} // namespace tessaly
