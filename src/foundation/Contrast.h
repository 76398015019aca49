#pragma once

#include "foundation/RGBAComponents.h"

namespace tessaly {

/// What text takes to be read, and lines to be seen, of 1 (the same colour) to 21 (black on white).
inline constexpr double textContrast = 4.5;
inline constexpr double lineContrast = 3.0;

/// Of two opaque colours.
double contrastBetween(const RGBAComponents& one, const RGBAComponents& other);

/// What is seen of a colour, translucent or not, laid over an opaque one.
RGBAComponents laidOver(const RGBAComponents& background, const RGBAComponents& color);

/// `color`, with as little of `text` mixed into it as gives it that contrast to `background`. All of it where
/// no less does, so it is never worse than the text itself.
RGBAComponents withContrast(double contrast, const RGBAComponents& color, const RGBAComponents& text,
                            const RGBAComponents& background);

} // namespace tessaly
