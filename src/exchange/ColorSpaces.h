#pragma once

#include <array>

/// Colours of other spaces as sRGB: red, green and blue with gamma, 0.0 ... 1.0 within its gamut and beyond
/// outside of it.
namespace tessaly::colorSpaces {

using Triple = std::array<double, 3>;

/// Hue in degrees, saturation and lightness in percent.
Triple fromHsl(const Triple& hsl);

/// Hue in degrees, whiteness and blackness in percent.
Triple fromHwb(const Triple& hwb);

/// Lightness 0 ... 100, white is that of D50.
Triple fromLab(const Triple& lab);

/// Lightness 0 ... 1.
Triple fromOklab(const Triple& oklab);

/// Lightness, chroma and hue in degrees as lightness and two axes.
Triple fromPolar(const Triple& lch);

Triple fromSrgb(const Triple& rgb);
Triple fromLinearSrgb(const Triple& rgb);
Triple fromDisplayP3(const Triple& rgb);
Triple fromA98(const Triple& rgb);
Triple fromProphoto(const Triple& rgb);
Triple fromRec2020(const Triple& rgb);
Triple fromXyzD50(const Triple& xyz);
Triple fromXyzD65(const Triple& xyz);

} // namespace tessaly::colorSpaces
