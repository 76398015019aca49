#include "exchange/ColorSpaces.h"

#include "foundation/SrgbCurve.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace tessaly::colorSpaces {
namespace {

using Matrix = std::array<Triple, 3>;

constexpr Matrix xyzFromP3{{{608311.0 / 1250200, 189793.0 / 714400, 198249.0 / 1000160},
                            {35783.0 / 156275, 247089.0 / 357200, 198249.0 / 2500400},
                            {0, 32229.0 / 714400, 5220557.0 / 5000800}}};
constexpr Matrix xyzFromA98{{{573536.0 / 994567, 263643.0 / 1420810, 187206.0 / 994567},
                             {591459.0 / 1989134, 6239551.0 / 9945670, 374412.0 / 4972835},
                             {53769.0 / 1989134, 351524.0 / 4972835, 4929758.0 / 4972835}}};
constexpr Matrix xyzFromRec2020{{{63426534.0 / 99577255, 20160776.0 / 139408157, 47086771.0 / 278816314},
                                 {26158966.0 / 99577255, 472592308.0 / 697040785, 8267143.0 / 139408157},
                                 {0, 19567812.0 / 697040785, 295819943.0 / 278816314}}};
constexpr Matrix xyzD50FromProphoto{{{0.79776664490064230, 0.13518129740053308, 0.03134773412839220},
                                     {0.28807482881940130, 0.71183523424187300, 0.00008993693872564},
                                     {0, 0, 0.82510460251046020}}};
constexpr Matrix d65FromD50{{{0.9554734527042182, -0.023098536874261423, 0.0632593086610217},
                             {-0.028369706963208136, 1.0099954580058226, 0.021041398966943008},
                             {0.012314001688319899, -0.020507696433477912, 1.3303659366080753}}};
constexpr Matrix srgbFromXyz{{{12831.0 / 3959, -329.0 / 214, -1974.0 / 3959},
                              {-851781.0 / 878810, 1648619.0 / 878810, 36519.0 / 878810},
                              {705.0 / 12673, -2585.0 / 12673, 705.0 / 667}}};
constexpr Matrix conesFromOklab{{{1, 0.3963377773761749, 0.2158037573099136},
                                 {1, -0.1055613458156586, -0.0638541728258133},
                                 {1, -0.0894841775298119, -1.2914855480194092}}};
constexpr Matrix xyzFromCones{{{1.2268798758459243, -0.5578149944602171, 0.2813910456659647},
                               {-0.0405757452148008, 1.1122868032803170, -0.0717110580655164},
                               {-0.0763729366746601, -0.4214933324022432, 1.5869240198367816}}};
constexpr Triple whiteD50{0.3457 / 0.3585, 1.0, (1.0 - 0.3457 - 0.3585) / 0.3585};

Triple product(const Matrix& matrix, const Triple& vector) {
    Triple result{};
    for (std::size_t row = 0; row < result.size(); ++row) {
        result[row] = matrix[row][0] * vector[0] + matrix[row][1] * vector[1] + matrix[row][2] * vector[2];
    }
    return result;
}

// A transfer curve, mirrored at zero.
Triple mapped(const Triple& channels, auto curve) {
    Triple result{};
    std::ranges::transform(channels, result.begin(),
                           [&](double c) { return std::copysign(curve(std::abs(c)), c); });
    return result;
}

double srgbFromLinear(double c) {
    return c > 0.0031308 ? 1.055 * std::pow(c, 1 / 2.4) - 0.055 : 12.92 * c;
}

double linearFromRec2020(double c) {
    constexpr double alpha = 1.09929682680944;
    constexpr double beta = 0.018053968510807;
    return c < beta * 4.5 ? c / 4.5 : std::pow((c + alpha - 1) / alpha, 1 / 0.45);
}

double turnsOf(double degrees) {
    const double turns = degrees / 360;
    return turns - std::floor(turns);
}

} // namespace

Triple fromHsl(const Triple& hsl) {
    const double hue = turnsOf(hsl[0]) * 12;
    const double saturation = std::clamp(hsl[1] / 100, 0.0, 1.0);
    const double lightness = std::clamp(hsl[2] / 100, 0.0, 1.0);
    const double reach = saturation * std::min(lightness, 1 - lightness);
    const auto channel = [&](double offset) {
        const double k = std::fmod(offset + hue, 12.0);
        return lightness - reach * std::max(-1.0, std::min({k - 3, 9 - k, 1.0}));
    };
    return {channel(0), channel(8), channel(4)};
}

Triple fromHwb(const Triple& hwb) {
    const double white = std::clamp(hwb[1] / 100, 0.0, 1.0);
    const double black = std::clamp(hwb[2] / 100, 0.0, 1.0);
    if (white + black >= 1) {
        const double grey = white / (white + black);
        return {grey, grey, grey};
    }
    Triple rgb = fromHsl({hwb[0], 100, 50});
    std::ranges::transform(rgb, rgb.begin(), [&](double c) { return c * (1 - white - black) + white; });
    return rgb;
}

Triple fromPolar(const Triple& lch) {
    const double angle = turnsOf(lch[2]) * 2 * std::numbers::pi;
    return {lch[0], lch[1] * std::cos(angle), lch[1] * std::sin(angle)};
}

Triple fromLab(const Triple& lab) {
    constexpr double kappa = 24389.0 / 27;
    constexpr double epsilon = 216.0 / 24389;
    const double y = (lab[0] + 16) / 116;
    const double x = lab[1] / 500 + y;
    const double z = y - lab[2] / 200;
    const auto opened = [&](double f) {
        const double cube = f * f * f;
        return cube > epsilon ? cube : (116 * f - 16) / kappa;
    };
    const double luminance = lab[0] > kappa * epsilon ? y * y * y : lab[0] / kappa;
    return fromXyzD50({opened(x) * whiteD50[0], luminance * whiteD50[1], opened(z) * whiteD50[2]});
}

Triple fromOklab(const Triple& oklab) {
    Triple cones = product(conesFromOklab, oklab);
    std::ranges::transform(cones, cones.begin(), [](double c) { return c * c * c; });
    return fromXyzD65(product(xyzFromCones, cones));
}

Triple fromSrgb(const Triple& rgb) {
    return rgb;
}

Triple fromLinearSrgb(const Triple& rgb) {
    return mapped(rgb, srgbFromLinear);
}

Triple fromDisplayP3(const Triple& rgb) {
    return fromXyzD65(product(xyzFromP3, mapped(rgb, linearFromSrgb)));
}

Triple fromA98(const Triple& rgb) {
    const auto linear = [](double c) { return std::pow(c, 563.0 / 256); };
    return fromXyzD65(product(xyzFromA98, mapped(rgb, linear)));
}

Triple fromProphoto(const Triple& rgb) {
    const auto linear = [](double c) { return c <= 16.0 / 512 ? c / 16 : std::pow(c, 1.8); };
    return fromXyzD50(product(xyzD50FromProphoto, mapped(rgb, linear)));
}

Triple fromRec2020(const Triple& rgb) {
    return fromXyzD65(product(xyzFromRec2020, mapped(rgb, linearFromRec2020)));
}

Triple fromXyzD50(const Triple& xyz) {
    return fromXyzD65(product(d65FromD50, xyz));
}

Triple fromXyzD65(const Triple& xyz) {
    return fromLinearSrgb(product(srgbFromXyz, xyz));
}

} // namespace tessaly::colorSpaces
