#include "exchange/CssQuantity.h"

#include "exchange/CssCalculation.h"
#include "exchange/CssCharacter.h"
#include "exchange/CssName.h"

#include <algorithm>
#include <array>
#include <charconv>
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

// Larger ones serve nobody, and what is computed from these stays finite.
constexpr double largestNumber = 1e30;

// Of a number that no double can hold: 0, or the largest.
double outOfRange(std::string_view text) {
    const auto exponent = text.find_first_of("eE");
    const bool isTiny = exponent != std::string_view::npos ? text[exponent + 1] == '-' : text.find('.') < 5;
    if (isTiny) {
        return 0.0;
    }
    return text.starts_with('-') ? -largestNumber : largestNumber;
}

// Of a number, a percentage or a dimension, cut to what can still be computed with.
double numberOf(const CssToken& token) {
    std::string_view text = token.text;
    text.remove_suffix(token.kind == CssToken::Kind::Percentage ? 1 : token.name.size());
    text.remove_prefix(text.starts_with('+') ? 1 : 0);
    double number = 0.0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    return result.ec == std::errc::result_out_of_range ? outOfRange(text)
                                                       : std::clamp(number, -largestNumber, largestNumber);
}

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
