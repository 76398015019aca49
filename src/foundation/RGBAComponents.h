#pragma once

namespace tessaly {

/// The components of a colour in calibrated RGB, each 0.0 ... 1.0; alpha 1.0 is opaque.
struct RGBAComponents {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double alpha = 1.0;

    bool operator==(const RGBAComponents&) const = default;
};

/// From components of 0 to 255, divided in single precision.
constexpr RGBAComponents rgbOfBytes(float red, float green, float blue, double alpha = 1.0) {
    return {red / 255.0F, green / 255.0F, blue / 255.0F, alpha};
}

} // namespace tessaly
