#pragma once

#include "model/Color.h"

#include <string>

namespace tessaly {

/// "#rrggbb", every channel rounded to its nearest byte. A color without RGB form is black.
std::string svgColorText(const Color& color);

} // namespace tessaly
