#pragma once

#include <optional>

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

/// A colour as the user picks it. Most have a form in calibrated RGB; a pattern, say, has none.
class Color {
  public:
    /// Opaque black.
    Color() : components_{RGBAComponents{}} {}

    /// Components outside 0.0 ... 1.0 are taken as the nearest bound, not-a-number as 0.0.
    static Color calibratedRGB(double red, double green, double blue, double alpha = 1.0);
    static Color black() { return calibratedRGB(0.0, 0.0, 0.0); }
    static Color white() { return calibratedRGB(1.0, 1.0, 1.0); }
    static Color withoutRGBForm();

    /// None when the colour cannot be expressed in calibrated RGB.
    const std::optional<RGBAComponents>& calibratedRGB() const { return components_; }

    /// The same colour with another alpha; a colour without RGB form stays as it is.
    Color withAlpha(double alpha) const;

    bool operator==(const Color&) const = default;

  private:
    explicit Color(const std::optional<RGBAComponents>& components) : components_{components} {}

    std::optional<RGBAComponents> components_;
};

} // namespace tessaly
