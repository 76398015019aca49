#include "raster/GradientPicture.h"

#include "raster/GradientRaster.h"

#include <algorithm>

namespace tessaly {

GradientPicture::GradientPicture(const Gradient& gradient, GradientRamp::Opacity opacity, int width,
                                 int height)
    : orientation_{gradient.orientation()}, width_{width}, height_{height} {
    if (!gradient.stops().empty()) {
        ramp_.emplace(gradient.stops(), opacity);
    }
}

void GradientPicture::fillRows(int first, std::span<std::uint32_t> pixels) const {
    if (!ramp_) {
        std::ranges::fill(pixels, 0U);
        return;
    }
    const auto rows = static_cast<int>(pixels.size() / static_cast<std::size_t>(width_));
    const PixelBuffer buffer{pixels, width_, rows, 1.0, static_cast<double>(height_ - first)};
    const Rect box{0.0, 0.0, static_cast<double>(width_), static_cast<double>(height_)};
    fillGradient(buffer, GradientPlace::inBox(box), orientation_, *ramp_, PixelForm::StraightBytes);
}

} // namespace tessaly
