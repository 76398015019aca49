#pragma once

#include "foundation/RGBAComponents.h"

#include <QColor>

namespace tessaly {

inline QColor toQColor(const RGBAComponents& rgb) {
    return QColor::fromRgbF(static_cast<float>(rgb.red), static_cast<float>(rgb.green),
                            static_cast<float>(rgb.blue), static_cast<float>(rgb.alpha));
}

/// Whether light text belongs on it.
inline bool isDark(const QColor& background) {
    constexpr int middle = 128; // of 255
    return background.lightness() < middle;
}

} // namespace tessaly
