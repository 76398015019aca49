#pragma once

#include <QPalette>

namespace tessaly {

/// The palette of a dark desktop.
inline QPalette darkPalette() {
    QPalette palette{QColor{0x35, 0x35, 0x35}, QColor{0x2d, 0x2d, 0x2d}}; // and light text, by the toolkit
    palette.setColor(QPalette::Base, QColor{0x1e, 0x1e, 0x1e});
    return palette;
}

} // namespace tessaly
