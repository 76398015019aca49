#pragma once

#include "model/Gradient.h"

#include <span>
#include <string>

namespace tessaly {

/// A rule for each gradient, ".preset-1 { background: ...; }" and so on: in RGBA where a stop is not opaque,
/// else hexadecimal. A gradient without stops is left out, and its number with it.
std::string presetsCssText(std::span<const Gradient> gradients);

/// An SVG document with each gradient, "preset-1" and so on, in its exact numbers, and a square that shows
/// it. A gradient without stops is left out, and its number with it.
std::string presetsSvgText(std::span<const Gradient> gradients);

} // namespace tessaly
