#include "model/Color.h"

namespace tessaly {
namespace {

double inRange(double component) {
    if (!(component > 0.0)) { // not-a-number too
        return 0.0;
    }
    return component < 1.0 ? component : 1.0;
}

} // namespace

Color Color::calibratedRGB(double red, double green, double blue, double alpha) {
    return Color{RGBAComponents{inRange(red), inRange(green), inRange(blue), inRange(alpha)}};
}

Color Color::withoutRGBForm() {
    return Color{std::nullopt};
}

Color Color::withAlpha(double alpha) const {
    Color color = *this;
    if (color.components_) {
        color.components_->alpha = inRange(alpha);
    }
    return color;
}

} // namespace tessaly
