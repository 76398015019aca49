#pragma once

#include "foundation/RGBAComponents.h"

#include <optional>

namespace tessaly {

/// A colour as the user picks it. Most have a form in calibrated RGB; a pattern, say, has none.
class Color {
  public:
    /// Opaque black.
    Color() : components_{RGBAComponents{}} {}

    /// Components outside 0.0 ... 1.0 are taken as the nearest bound, not-a-number as 0.0.
    static Color calibratedRGB(double red, double green, double blue, double alpha = 1.0);
    static Color black() { return calibratedRGB(0.0, 0.0, 0.0); }
    static Color white() { return calibratedRGB(1.0, 1.0, 1.0); }
    static Color withoutRGBForm() { return Color{std::nullopt}; }

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
