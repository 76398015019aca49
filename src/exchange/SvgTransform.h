#pragma once

#include "foundation/Geometry.h"

#include <optional>
#include <string_view>

namespace tessaly {

/// An affine map as SVG writes it: x' = a x + c y + e, y' = b x + d y + f.
struct SvgTransform {
    double a = 1.0;
    double b = 0.0;
    double c = 0.0;
    double d = 1.0;
    double e = 0.0;
    double f = 0.0;

    /// The map that applies `first` and then this one.
    SvgTransform after(const SvgTransform& first) const;
    Point operator()(Point point) const {
        return {a * point.x + c * point.y + e, b * point.x + d * point.y + f};
    }

    /// By how much areas grow; 0 or no finite number: there is no way back.
    double determinant() const { return a * d - b * c; }
};

/// The maps of an attribute `gradientTransform`, put together. None: it is not well written.
std::optional<SvgTransform> svgTransform(std::string_view text);

} // namespace tessaly
