#include "exchange/CssMixing.h"

#include "exchange/CssName.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

constexpr std::array<std::string_view, 15> mixingSpaces{
    "srgb", "srgb-linear", "display-p3", "a98-rgb", "prophoto-rgb", "rec2020", "lab",   "oklab",
    "xyz",  "xyz-d50",     "xyz-d65",    "hsl",     "hwb",          "lch",     "oklch",
};

bool isMixingSpace(std::string_view name) {
    return std::ranges::find(mixingSpaces, name) != mixingSpaces.end();
}

} // namespace

std::optional<CssMixing> readCssMixing(CssArgument argument) {
    const auto in = std::ranges::find_if(argument, [](const CssComponent& c) { return c.isIdent("in"); });
    CssMixing mixing{{}, {argument.begin(), in}};
    if (in == argument.end()) {
        return mixing;
    }
    const auto space = in + 1;
    if (space == argument.end()) {
        return std::nullopt;
    }
    mixing.space = cssName(space->token.name);
    const bool hasHue = argument.end() - space > 2 && space[2].isIdent("hue");
    mixing.rest.insert(mixing.rest.end(), space + (hasHue ? 3 : 1), argument.end());
    return isMixingSpace(mixing.space) ? std::optional{mixing} : std::nullopt;
}

} // namespace tessaly
