#include "exchange/CssColorFunctions.h"

#include "exchange/CssName.h"

#include <algorithm>

namespace tessaly {
namespace {

using colorSpaces::Triple;
using Commas = CssColorFunction::Commas;

// The same single-precision fraction that the number fields make of a channel.
Triple fromBytes(const Triple& bytes) {
    Triple fractions{};
    std::ranges::transform(bytes, fractions.begin(), [](double byte) {
        return static_cast<double>(static_cast<float>(byte) / 255.0F);
    });
    return fractions;
}

Triple fromLch(const Triple& lch) {
    return colorSpaces::fromLab(colorSpaces::fromPolar(lch));
}

Triple fromOklch(const Triple& lch) {
    return colorSpaces::fromOklab(colorSpaces::fromPolar(lch));
}

constexpr CssChannel byte{255, false, 0, 255}; // cuts the 256 that a full channel may be written as
constexpr CssChannel percent{100, false, 0, 100};
constexpr CssChannel hue{0, true};
constexpr CssChannel fraction{1};
constexpr CssChannel toOne{1, false, 0, 1};
constexpr double most = 1e30;

constexpr CssColorFunction rgb{"rgb", {byte, byte, byte}, fromBytes, Commas::Uniform, true};
constexpr CssColorFunction hsl{"hsl", {hue, percent, percent}, colorSpaces::fromHsl, Commas::Percent, true};

constexpr auto renamed(CssColorFunction function, std::string_view name) {
    function.name = name;
    return function;
}

constexpr std::array functions{
    rgb,
    renamed(rgb, "rgba"),
    hsl,
    renamed(hsl, "hsla"),
    CssColorFunction{"hwb", {hue, percent, percent}, colorSpaces::fromHwb, Commas::None, true},
    CssColorFunction{"lab", {percent, CssChannel{125}, CssChannel{125}}, colorSpaces::fromLab},
    CssColorFunction{"lch", {percent, CssChannel{150, false, 0, most}, hue}, fromLch},
    CssColorFunction{"oklab", {toOne, CssChannel{0.4}, CssChannel{0.4}}, colorSpaces::fromOklab},
    CssColorFunction{"oklch", {toOne, CssChannel{0.4, false, 0, most}, hue}, fromOklch},
};

using Conversion = Triple (*)(const Triple&);

constexpr CssColorFunction space(std::string_view name, Conversion toSrgb) {
    return {name, {fraction, fraction, fraction}, toSrgb};
}

constexpr std::array spaces{
    space("srgb", colorSpaces::fromSrgb),
    space("srgb-linear", colorSpaces::fromLinearSrgb),
    space("display-p3", colorSpaces::fromDisplayP3),
    space("a98-rgb", colorSpaces::fromA98),
    space("prophoto-rgb", colorSpaces::fromProphoto),
    space("rec2020", colorSpaces::fromRec2020),
    space("xyz", colorSpaces::fromXyzD65),
    space("xyz-d50", colorSpaces::fromXyzD50),
    space("xyz-d65", colorSpaces::fromXyzD65),
};

const CssColorFunction* findIn(std::span<const CssColorFunction> table, std::string_view name) {
    const auto row =
        std::ranges::find_if(table, [&](const CssColorFunction& f) { return isCssName(name, f.name); });
    return row == table.end() ? nullptr : &*row;
}

} // namespace

const CssColorFunction* findColorFunction(std::string_view name) {
    return findIn(functions, name);
}

const CssColorFunction* findColorSpace(std::string_view name) {
    return findIn(spaces, name);
}

} // namespace tessaly
