#pragma once

#include "foundation/Geometry.h"
#include "foundation/RGBAComponents.h"
#include "raster/PixelBuffer.h"

namespace tessaly {

/// Paints a disc of an opaque colour over what is there, its edge smoothed, exactly where it lies between the
/// pixels. Points; parts outside the buffer are left out.
void fillDisc(const PixelBuffer& buffer, Point center, double radius, const RGBAComponents& color);

} // namespace tessaly
