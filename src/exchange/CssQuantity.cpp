#include "exchange/CssQuantity.h"

#include "exchange/CssCalculation.h"
#include "exchange/CssCharacter.h"
#include "exchange/CssName.h"
#include "exchange/CssNumber.h"

#include <algorithm>
#include <array>
#include <numbers>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

struct Unit {
    std::string_view name;
    Kind kind;
    double factor;
    std::string_view base;
};

constexpr double pxPerInch = 96;

constexpr std::array units{
    Unit{"deg", Kind::Angle, 1, {}},
    Unit{"grad", Kind::Angle, 0.9, {}},
    Unit{"rad", Kind::Angle, 180 / std::numbers::pi, {}},
    Unit{"turn", Kind::Angle, 360, {}},
    Unit{"px", Kind::Length, 1, "px"},
    Unit{"in", Kind::Length, pxPerInch, "px"},
    Unit{"cm", Kind::Length, pxPerInch / 2.54, "px"},
    Unit{"mm", Kind::Length, pxPerInch / 25.4, "px"},
    Unit{"q", Kind::Length, pxPerInch / 101.6, "px"},
    Unit{"pt", Kind::Length, pxPerInch / 72, "px"},
    Unit{"pc", Kind::Length, pxPerInch / 6, "px"},
};

// Lengths that depend on the font or on the window.
constexpr std::array<std::string_view, 42> relativeUnits{
    "em",    "rem",   "ex",    "rex", "ch",  "rch",  "cap",   "rcap",  "ic",    "ric", "lh",
    "rlh",   "vw",    "vh",    "vi",  "vb",  "vmin", "vmax",  "svw",   "svh",   "svi", "svb",
    "svmin", "svmax", "lvw",   "lvh", "lvi", "lvb",  "lvmin", "lvmax", "dvw",   "dvh", "dvi",
    "dvb",   "dvmin", "dvmax", "cqw", "cqh", "cqi",  "cqb",   "cqmin", "cqmax",
};

std::optional<CssQuantity> withUnit(double number, std::string_view written) {
    const auto isNamed = [&](const Unit& u) { return isCssName(written, u.name); };
    const Unit* const unit = std::ranges::find_if(units, isNamed);
    if (unit != units.end()) {
        return CssQuantity{unit->kind, number * unit->factor, unit->base};
    }
    const std::string name = cssName(written);
    const auto* const relative = std::ranges::find(relativeUnits, name);
    return relative == relativeUnits.end() ? std::nullopt
                                           : std::optional{CssQuantity{Kind::Length, number, *relative}};
}

} // namespace

std::optional<CssQuantity> readCssQuantity(const CssComponent& component) {
    const CssToken& token = component.token;
    switch (token.kind) {
    case CssToken::Kind::Number:
        return CssQuantity{Kind::Number, numberOf(token)};
    case CssToken::Kind::Percentage:
        return CssQuantity{Kind::Percent, numberOf(token)};
    case CssToken::Kind::Dimension:
        return withUnit(numberOf(token), token.name);
    case CssToken::Kind::Function:
        return isCssName(token.name, "calc") ? CssCalculation::result(component.content) : std::nullopt;
    default:
        return std::nullopt;
    }
}

} // namespace tessaly
