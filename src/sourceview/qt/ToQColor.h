#pragma once

#include "model/Color.h"

#include <QColor>

namespace tessaly {

inline QColor toQColor(const RGBAComponents& color) {
    return QColor::fromRgbF(static_cast<float>(color.red), static_cast<float>(color.green),
                            static_cast<float>(color.blue), static_cast<float>(color.alpha));
}

} // namespace tessaly
