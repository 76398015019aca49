#include "exchange/CssColorReader.h"
#include "exchange/CssGradientSyntax.h"
#include "exchange/CssName.h"
#include "exchange/CssQuantity.h"
#include "exchange/LinearDirection.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace tessaly {
namespace {

using Kind = CssQuantity::Kind;

// Along one side of the box: a share of it, downwards for the vertical one, or px.
struct Coordinate {
    double value = 0.0;
    bool isPx = false;
};

struct PointOfBox {
    Coordinate x;
    Coordinate y;

    bool isPx() const { return x.isPx || y.isPx; }
    bool isCenter() const { return !isPx() && x.value == 0.5 && y.value == 0.5; }
};

struct NamedCoordinate {
    std::string_view name;
    double share;
};

using Names = std::array<NamedCoordinate, 3>;
constexpr Names horizontal{{{"left", 0.0}, {"center", 0.5}, {"right", 1.0}}};
constexpr Names vertical{{{"top", 0.0}, {"center", 0.5}, {"bottom", 1.0}}};

std::optional<Coordinate> readCoordinate(const CssComponent& component, const Names& names) {
    const auto isNamed = [&](const NamedCoordinate& n) { return component.isIdent(n.name); };
    const NamedCoordinate* const name = std::ranges::find_if(names, isNamed);
    if (name != names.end()) {
        return Coordinate{name->share};
    }
    const auto quantity = readCssQuantity(component);
    if (!quantity || quantity->kind == Kind::Angle) {
        return std::nullopt;
    }
    return quantity->kind == Kind::Percent ? Coordinate{quantity->value / 100}
                                           : Coordinate{quantity->value, !quantity->isZero()};
}

std::optional<PointOfBox> readPoint(CssArgument argument) {
    if (argument.size() != 2) {
        return std::nullopt;
    }
    const auto x = readCoordinate(argument[0], horizontal);
    const auto y = readCoordinate(argument[1], vertical);
    return x && y ? std::optional{PointOfBox{*x, *y}} : std::nullopt;
}

std::optional<CssQuantity> readRadius(CssArgument argument) {
    const auto radius = argument.size() == 1 ? readCssQuantity(argument.front()) : std::nullopt;
    const bool fits = radius && radius->kind != Kind::Angle && radius->value >= 0;
    return fits ? radius : std::nullopt;
}

// from(), to() and color-stop(); false: it is none of them.
bool readPointStop(const CssComponent& component, std::vector<WrittenStop>& stops, bool& hasEnds) {
    const CssComponents content = readCssComponents(component.content, 0, 4);
    if (!component.isFunction() || !content.complete || !content.balanced || content.list.empty()) {
        return false;
    }
    const auto color = readCssColor(content.list.back());
    const bool isFrom = isCssName(component.token.name, "from");
    if (isFrom || isCssName(component.token.name, "to")) {
        hasEnds = true;
        stops.push_back({color, isFrom ? 0.0 : 1.0});
        return color && content.list.size() == 1;
    }
    const auto position = readCssQuantity(content.list.front());
    if (!isCssName(component.token.name, "color-stop") || content.list.size() != 3 || !color ||
        !content.list[1].isComma() || !position) {
        return false;
    }
    const bool isPercent = position->kind == Kind::Percent;
    stops.push_back({color, isPercent ? position->value / 100 : position->value});
    return isPercent || position->kind == Kind::Number;
}

// Browsers sort. So it is here where from() and to() are; else the order stays that of the text, which is how
// this program writes stops that lie below earlier ones.
std::optional<GradientDraft> withPointStops(GradientDraft draft, CssArguments arguments) {
    bool hasEnds = false;
    const bool allFit = std::ranges::all_of(arguments, [&](CssArgument argument) {
        return argument.size() == 1 && readPointStop(argument.front(), draft.stops, hasEnds);
    });
    if (!allFit || draft.stops.empty()) {
        return std::nullopt;
    }
    const auto position = [](const WrittenStop& stop) { return stop.position.value_or(0); };
    if (hasEnds) {
        std::ranges::stable_sort(draft.stops, {}, position);
    } else if (!std::ranges::is_sorted(draft.stops, {}, position)) {
        draft.notes.emplace_back("stops left in the order written");
    }
    for (WrittenStop& stop : draft.stops) {
        stop.position = std::clamp(position(stop), 0.0, 1.0); // moved, not cut, and only once in order
    }
    return draft;
}

std::optional<GradientDraft> readLinear(const PointOfBox& from, const PointOfBox& to) {
    const double right = to.x.value - from.x.value;
    const double up = from.y.value - to.y.value;
    const bool mixedUnits = (from.isPx() || to.isPx()) && [&] {
        const std::array all{from.x, from.y, to.x, to.y};
        return std::ranges::any_of(all, [](const Coordinate& c) { return !c.isPx && c.value != 0; });
    }();
    if ((right == 0 && up == 0) || mixedUnits) {
        return std::nullopt;
    }
    GradientDraft draft;
    if (from.isPx() || to.isPx()) {
        draft.takeDirection(degreesOf(right, up));
        draft.takeLengths(true);
        return draft;
    }
    const double lengthSquared = right * right + up * up;
    const Point growth{right / lengthSquared, -up / lengthSquared};
    draft.takeLine(gradientLine(growth.x * (0.5 - from.x.value) + growth.y * (0.5 - from.y.value), growth));
    return draft;
}

// Everything else than a circle that fills the box is told.
GradientDraft readRadial(const PointOfBox& center, const CssQuantity& inner, const CssQuantity& outer,
                         CssArgument size) {
    GradientDraft draft;
    draft.orientation = orientation::radial;
    if (outer.kind != Kind::Percent || outer.value != 100) {
        draft.takeSize(size.front().text);
    }
    if (!center.isCenter()) {
        draft.takePlace();
    }
    if (inner.kind == outer.kind && outer.value > inner.value) {
        draft.track.start = inner.value / outer.value;
    }
    return draft;
}

} // namespace

std::optional<GradientDraft> readPointToPoint(CssArguments arguments, bool radial) {
    const std::size_t places = radial ? 4 : 2;
    if (arguments.size() <= places) {
        return std::nullopt;
    }
    const auto from = readPoint(arguments[0]);
    const auto to = readPoint(arguments[radial ? 2 : 1]);
    if (!from || !to) {
        return std::nullopt;
    }
    if (!radial) {
        auto draft = readLinear(*from, *to);
        return draft ? withPointStops(std::move(*draft), arguments.subspan(places)) : std::nullopt;
    }
    const auto inner = readRadius(arguments[1]);
    const auto outer = readRadius(arguments[3]);
    if (!inner || !outer) {
        return std::nullopt;
    }
    return withPointStops(readRadial(*to, *inner, *outer, arguments[3]), arguments.subspan(places));
}

} // namespace tessaly
