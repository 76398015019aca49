#pragma once

#include "foundation/Contrast.h"
#include "foundation/qt/ToQColor.h"

#include <QPalette>

namespace tessaly {

/// A colour of the palette as it is seen on a window, opaque, with as much of the text's colour mixed into it
/// as gives it that contrast.
inline QColor readableOnWindow(const QPalette& palette, QPalette::ColorRole role, double contrast) {
    constexpr double reserve = 1.02; // the display rounds to bytes
    const RGBAComponents background = toComponents(palette.color(QPalette::Window));
    return toQColor(withContrast(contrast * reserve, laidOver(background, toComponents(palette.color(role))),
                                 toComponents(palette.color(QPalette::WindowText)), background));
}

} // namespace tessaly
