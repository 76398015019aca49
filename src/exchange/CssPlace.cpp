#include "exchange/CssPlace.h"

#include "exchange/CssQuantity.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;
using Sides = std::array<std::string_view, 2>;

constexpr Sides horizontal{"left", "right"};
constexpr Sides vertical{"top", "bottom"};

bool isSide(const CssComponent& component, const Sides& sides) {
    return std::ranges::any_of(sides, [&](std::string_view side) { return component.isIdent(side); });
}

bool isName(const CssComponent& component, const Sides& sides) {
    return component.isIdent("center") || isSide(component, sides);
}

bool isAlong(const CssComponent& component, const Sides& sides) {
    return isName(component, sides) || isCssLength(component);
}

bool isFromSide(CssArgument pair, const Sides& sides) {
    return isSide(pair[0], sides) && isCssLength(pair[1]);
}

} // namespace

bool isCssLength(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    return quantity && (quantity->kind == Kind::Length || quantity->kind == Kind::Percent ||
                        (quantity->kind == Kind::Number && quantity->isZero()));
}

bool isCssPlace(CssArgument argument) {
    switch (argument.size()) {
    case 1:
        return isAlong(argument[0], horizontal) || isAlong(argument[0], vertical);
    case 2: // where one is a length, the horizontal one comes first
        return (isAlong(argument[0], horizontal) && isAlong(argument[1], vertical)) ||
               (isName(argument[0], vertical) && isName(argument[1], horizontal));
    case 4: {
        const CssArgument one = argument.first(2);
        const CssArgument other = argument.last(2);
        return (isFromSide(one, horizontal) && isFromSide(other, vertical)) ||
               (isFromSide(one, vertical) && isFromSide(other, horizontal));
    }
    default:
        return false;
    }
}

bool isCssCenter(CssArgument place) {
    const bool isFromSides = place.size() == 4; // of which half way is the same from either
    return std::ranges::all_of(place, [=](const CssComponent& component) {
        const auto quantity = readCssQuantity(component);
        return quantity ? quantity->kind == Kind::Percent && quantity->value == 50
                        : isFromSides || component.isIdent("center");
    });
}

} // namespace tessaly
