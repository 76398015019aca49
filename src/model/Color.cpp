#include "model/Color.h"

#include <algorithm>

namespace tessaly {
namespace {

double inRange(double component) {
    return component > 0.0 ? std::min(component, 1.0) : 0.0; // 0.0 for not-a-number too
}

} // namespace

Color Color::calibratedRGB(double red, double green, double blue, double alpha) {
    return Color{RGBAComponents{inRange(red), inRange(green), inRange(blue), inRange(alpha)}};
}

Color Color::withAlpha(double alpha) const {
    Color color = *this;
    if (color.components_) {
        color.components_->alpha = inRange(alpha);
    }
    return color;
}

} // namespace tessaly
