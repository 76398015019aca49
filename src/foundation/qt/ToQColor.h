#pragma once

#include "foundation/RGBAComponents.h"

#include <QColor>

namespace tessaly {

inline QColor toQColor(const RGBAComponents& rgb) {
    return QColor::fromRgbF(static_cast<float>(rgb.red), static_cast<float>(rgb.green),
                            static_cast<float>(rgb.blue), static_cast<float>(rgb.alpha));
}

/// The components of a valid colour.
inline RGBAComponents toComponents(const QColor& color) {
    const QColor rgb = color.toRgb();
    return {static_cast<double>(rgb.redF()), static_cast<double>(rgb.greenF()),
            static_cast<double>(rgb.blueF()), static_cast<double>(rgb.alphaF())};
}

/// Whether light text belongs on it.
inline bool isDark(const QColor& background) {
    constexpr int middle = 128; // of 255
    return background.lightness() < middle;
}

} // namespace tessaly
