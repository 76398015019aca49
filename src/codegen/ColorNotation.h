#pragma once

#include "model/Color.h"

#include <cstdint>
#include <optional>
#include <string>

/// A stop colour as CSS text.
namespace tessaly::colorNotation {

/// In a notation (ColorFormat.h); none for an unknown code, nor in hexadecimal for a colour without RGB form.
/// Only some notations write `opacity`, 0.0 ... 1.0, with one digit. A full channel reads 256 in RGB and
/// RGBA, deliberately, where the hexadecimal form has ff. The other notations write a colour without RGB form
/// with zero channels.
std::optional<std::string> colorText(std::int64_t notation, const Color& color, double opacity);

} // namespace tessaly::colorNotation
