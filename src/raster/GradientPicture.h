#pragma once

#include "model/Gradient.h"
#include "raster/GradientRamp.h"

#include <cstdint>
#include <optional>
#include <span>

namespace tessaly {

/// A gradient as a picture of its own, painted as a browser paints its code in a box of that size: a radial
/// one as the ellipse to the corners. Its rows are made when they are asked for, so that it may be of any
/// size. Without stops it is transparent.
class GradientPicture {
  public:
    static constexpr int largestSide = 16'384;

    /// Width and height in pixels, 1 ... largestSide.
    GradientPicture(const Gradient& gradient, GradientRamp::Opacity opacity, int width, int height);

    int width() const { return width_; }
    int height() const { return height_; }

    /// Fills whole rows, as many as there is room for, from `first` on; 0 is at the top. A pixel is red,
    /// green, blue and alpha as they follow each other in memory, rounded and not premultiplied.
    void fillRows(int first, std::span<std::uint32_t> pixels) const;

  private:
    std::optional<GradientRamp> ramp_;
    std::int64_t orientation_;
    int width_;
    int height_;
};

} // namespace tessaly
