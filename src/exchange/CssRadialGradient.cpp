#include "exchange/CssGradientSyntax.h"
#include "exchange/CssMixing.h"
#include "exchange/CssPlace.h"
#include "exchange/CssQuantity.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

constexpr std::string_view ownSize = "farthest-corner";
constexpr std::array<std::string_view, 4> sizes{"closest-side", "farthest-side", "closest-corner", ownSize};
constexpr std::array<std::string_view, 2> prefixedSizes{"contain",
                                                        "cover"}; // the first and the last of those

enum class Names { Standard, Prefixed };

bool isAny(const CssComponent& component, std::span<const std::string_view> names) {
    return std::ranges::any_of(names, [&](std::string_view name) { return component.isIdent(name); });
}

bool isSizeName(const CssComponent& component, Names names) {
    return isAny(component, sizes) || (names == Names::Prefixed && isAny(component, prefixedSizes));
}

bool isRadius(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    return quantity && quantity->value >= 0 && isCssLength(component);
}

bool isShare(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    return quantity && quantity->kind == Kind::Percent;
}

// One radius makes a circle, which knows no shares of the box, two an ellipse.
bool areRadii(CssArgument size, bool saysCircle, bool saysEllipse) {
    if (!std::ranges::all_of(size, isRadius)) {
        return false;
    }
    const bool isCircle = size.size() == 1 && !isShare(size.front());
    return (isCircle && !saysEllipse) || (size.size() == 2 && !saysCircle);
}

std::string words(CssArgument argument) {
    constexpr std::size_t most = 40;
    std::string text;
    for (const CssComponent& component : argument) {
        text += text.empty() ? "" : " ";
        text += component.text;
    }
    return text.size() > most ? "another" : text;
}

// Shape and size, "circle closest-side"; false: it is something else.
bool takeShape(GradientDraft& draft, CssArgument argument, Names names) {
    std::vector<CssComponent> size;
    std::ranges::copy_if(argument, std::back_inserter(size), [](const CssComponent& component) {
        return !component.isIdent("circle") && !component.isIdent("ellipse");
    });
    const auto says = [&](std::string_view shape) {
        return std::ranges::any_of(argument, [&](const CssComponent& c) { return c.isIdent(shape); });
    };
    const bool saysCircle = says("circle");
    const bool saysEllipse = says("ellipse");
    const bool isNamed = size.size() == 1 && isSizeName(size.front(), names);
    const bool fits = argument.size() == size.size() + (saysCircle || saysEllipse ? 1 : 0) &&
                      !argument.empty() &&
                      (size.empty() || isNamed || areRadii(size, saysCircle, saysEllipse));
    if (!fits) {
        return false;
    }
    if (saysCircle || (size.size() == 1 && !isNamed)) {
        draft.takeCircle();
    }
    if (!size.empty() && !size.front().isIdent(ownSize) && !size.front().isIdent("cover")) {
        draft.takeSize(words(size));
    }
    return true;
}

// Its place, "left 20px"; false: it is something else.
bool takePlace(GradientDraft& draft, CssArgument argument) {
    const bool isPlace = isCssPlace(argument);
    if (isPlace && !isCssCenter(argument)) {
        draft.takePlace(words(argument));
    }
    return isPlace;
}

} // namespace

std::optional<GradientDraft> readStandardRadial(CssArguments arguments) {
    GradientDraft draft;
    draft.orientation = orientation::radial;
    if (startsWithColor(arguments.front())) {
        return withStops(std::move(draft), arguments);
    }
    const auto mixing = readCssMixing(arguments.front());
    if (!mixing || (mixing->rest.empty() && mixing->space.empty())) {
        return std::nullopt;
    }
    const CssArgument rest{mixing->rest};
    const auto at = std::ranges::find_if(rest, [](const CssComponent& c) { return c.isIdent("at"); });
    const CssArgument shape{rest.begin(), at};
    if ((!shape.empty() && !takeShape(draft, shape, Names::Standard)) ||
        (at != rest.end() && !takePlace(draft, {at + 1, rest.end()}))) {
        return std::nullopt;
    }
    return withStops(std::move(draft), arguments.subspan(1), mixing->space);
}

// The place, then the shape; each may be left out. An angle beside the place turns nothing that can be seen.
std::optional<GradientDraft> readPrefixedRadial(CssArguments arguments) {
    GradientDraft draft;
    draft.orientation = orientation::radial;
    if (!startsWithColor(arguments.front())) {
        const CssArgument first = arguments.front();
        const bool endsInAngle = !first.empty() && [&] {
            const auto quantity = readCssQuantity(first.back());
            return quantity && quantity->kind == Kind::Angle;
        }();
        const CssArgument place = endsInAngle ? first.first(first.size() - 1) : first;
        const bool onlyAngle = endsInAngle && place.empty();
        if (!onlyAngle && !takePlace(draft, place) && !takeShape(draft, first, Names::Prefixed)) {
            return std::nullopt;
        }
        arguments = arguments.subspan(1);
    }
    if (!arguments.empty() && !startsWithColor(arguments.front()) &&
        takeShape(draft, arguments.front(), Names::Prefixed)) {
        arguments = arguments.subspan(1);
    }
    return withStops(std::move(draft), arguments);
}

} // namespace tessaly
