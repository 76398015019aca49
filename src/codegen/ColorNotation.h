#pragma once

#include "model/Color.h"

#include <cstdint>
#include <optional>
#include <string>

/// A stop colour as CSS text, in each of the notations.
namespace tessaly::colorNotation {

/// "#rrggbb" in lower case; none for a colour without RGB form.
std::optional<std::string> hexadecimalValueOfAnNSColor(const Color& color);

/// The other notations write a colour without RGB form with zero channels. A full channel reads 256 in rgb
/// and rgba, deliberately, where the hexadecimal form has ff. `alpha` is 0.0 ... 1.0, written with one digit.
std::string rgbValueOfAnNSColor(const Color& color);
std::string rgbaValueOfAnNSColor(const Color& color, double alpha);
std::string hslValueOfAnNSColor(const Color& color);
std::string hslaValueOfAnNSColor(const Color& color, double alpha);

/// The notation that `colorFormatType` selects; none for an unknown code. Notations without alpha ignore
/// `opacity`.
std::optional<std::string> colorText(std::int64_t colorFormatType, const Color& color, double opacity);

} // namespace tessaly::colorNotation
