#include "exchange/CssGradientSyntax.h"
#include "exchange/CssMixing.h"
#include "exchange/CssQuantity.h"

#include <algorithm>
#include <array>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

constexpr std::string_view ownSize = "farthest-corner";

// The last two are what prefixed gradients call closest-side and farthest-corner.
constexpr std::array<std::string_view, 6> sizes{"closest-side", "farthest-side", "closest-corner",
                                                ownSize,        "contain",       "cover"};
constexpr std::array<std::string_view, 5> places{"center", "left", "right", "top", "bottom"};

bool isAny(const CssComponent& component, std::span<const std::string_view> names) {
    return std::ranges::any_of(names, [&](std::string_view name) { return component.isIdent(name); });
}

bool isLength(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    return quantity && (quantity->kind == Kind::Length || quantity->kind == Kind::Percent ||
                        (quantity->kind == Kind::Number && quantity->isZero()));
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

bool isHalf(const CssComponent& component) {
    const auto quantity = readCssQuantity(component);
    return quantity && quantity->kind == Kind::Percent && quantity->value == 50;
}

bool isCenter(CssArgument argument) {
    return std::ranges::all_of(argument,
                               [](const CssComponent& c) { return c.isIdent("center") || isHalf(c); });
}

} // namespace

bool takeShape(GradientDraft& draft, CssArgument argument) {
    std::vector<CssComponent> size;
    bool circle = false;
    for (const CssComponent& component : argument) {
        if (component.isIdent("circle")) {
            circle = true;
        } else if (isAny(component, sizes) || isLength(component)) {
            size.push_back(component);
        } else if (!component.isIdent("ellipse")) {
            return false;
        }
    }
    const bool oneName = size.size() == 1 && isAny(size.front(), sizes);
    const bool lengths = size.size() <= 2 && std::ranges::all_of(size, isLength);
    if (argument.empty() || argument.size() > 3 || !(oneName || lengths)) {
        return false;
    }
    if (circle || (size.size() == 1 && lengths)) { // one radius is that of a circle
        draft.notes.emplace_back("circle taken as ellipse");
    }
    if (!size.empty() && !size.front().isIdent(ownSize) && !size.front().isIdent("cover")) {
        draft.notes.push_back("size " + words(size) + " taken as " + std::string{ownSize});
    }
    return true;
}

bool takePlace(GradientDraft& draft, CssArgument argument) {
    const bool isPlace = !argument.empty() && argument.size() <= 4 &&
                         std::ranges::all_of(argument, [](const CssComponent& component) {
                             return isAny(component, places) || isLength(component);
                         });
    if (isPlace && !isCenter(argument)) {
        draft.notes.push_back("place " + words(argument) + " taken as center");
    }
    return isPlace;
}

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
    if ((!shape.empty() && !takeShape(draft, shape)) ||
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
        if (!onlyAngle && !takePlace(draft, place) && !takeShape(draft, first)) {
            return std::nullopt;
        }
        arguments = arguments.subspan(1);
    }
    if (!arguments.empty() && !startsWithColor(arguments.front()) && takeShape(draft, arguments.front())) {
        arguments = arguments.subspan(1);
    }
    return withStops(std::move(draft), arguments);
}

} // namespace tessaly
